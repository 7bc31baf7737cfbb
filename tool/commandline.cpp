#include "tool/commandline.h"

#include <CLI/CLI.hpp>

#include "tool/printable.h"
#include "tool/suggest.h"

namespace {

constexpr Option kFolderOption = {"-C", "DIR", "Work in this folder", false, Times::kMany};
constexpr Option kVersionOption = {"--version", "", "Print the version and leave"};
constexpr Option kJsonOption = {"--json", "", "Print one JSON document instead of text"};

CLI::Option* Declare(CLI::App& app, const Option& option) {
  const std::string help = option.help;
  const bool isPositional = *option.name != '-';
  if (!isPositional && *option.value == '\0') {
    return app.add_flag(option.name, help)->disable_flag_override();
  }
  CLI::Option* declared = app.add_option(option.name, help);
  if (!isPositional) declared->type_name(option.value);
  declared->required(option.required);
  if (option.times == Times::kMany) {
    // A positional takes all words that are left, an option one word each time.
    const int most = CLI::detail::expected_max_vector_size;
    declared->expected(1, isPositional ? most : most - 1)->allow_extra_args(isPositional);
  }
  return declared;
}

std::string CommandFooter(const Command& command) {
  std::string footer = command.help;
  if (!footer.empty()) footer += "\n\n";
  return footer + "Example:\n  " + command.example;
}

class HelpLayout : public CLI::Formatter {
 public:
  HelpLayout() {
    column_width(26);
    label("Positionals", "Arguments");
    label("REQUIRED", "(required)");
  }

  std::string make_usage(const CLI::App* app, std::string name) const override {
    const bool isProgram = app->get_parent() == nullptr;
    return isProgram ? "Usage: qdf [-C DIR] COMMAND ...\n" : CLI::Formatter::make_usage(app, name);
  }
};

class Grammar {
 public:
  explicit Grammar(std::span<const Command* const> commands)
      : app_("Shows what QDF documents say that a printer can do.", "qdf") {
    app_.require_subcommand(0, 1)->allow_extras();
    app_.formatter(std::make_shared<HelpLayout>());
    app_.set_help_flag("-h,--help", "Print this page and leave");
    app_.footer(
        "A document is given as a path, or as a bare name that is looked up under\n"
        "OutputDrivers. 'qdf COMMAND --help' tells about a command.");
    folders_ = Declare(app_, kFolderOption);
    version_ = Declare(app_, kVersionOption);
    for (const Command* command : commands) AddCommand(*command);
  }

  Invocation Parse(int count, const char* const* words) {
    Invocation invocation;
    try {
      app_.parse(count, words);
    } catch (const CLI::CallForHelp&) {
      invocation.text = app_.help();
      return invocation;
    } catch (const CLI::ParseError& error) {
      throw UsageFault(error.what());
    }
    if (version_->count() > 0) {
      invocation.text = "qdf " QDF_VERSION "\n";
      return invocation;
    }
    RefuseExtras();
    invocation.folders = folders_->results();
    ReadCommand(invocation);
    return invocation;
  }

 private:
  struct Entry {
    const Command* command;
    CLI::App* app;
    std::vector<CLI::Option*> options;
  };

  void AddCommand(const Command& command) {
    CLI::App* app = app_.add_subcommand(command.name, command.summary)->group("Commands");
    app->footer(CommandFooter(command));
    Entry entry{&command, app, {}};
    for (const Option& option : command.options) entry.options.push_back(Declare(*app, option));
    entry.options.push_back(Declare(*app, kJsonOption));
    entries_.push_back(entry);
  }

  // The command that was named, or the program as a whole.
  CLI::App& Chosen() {
    const auto chosen = app_.get_subcommands();
    return chosen.empty() ? app_ : *chosen.front();
  }

  Failure UsageFault(const std::string& what) {
    CLI::App& app = Chosen();
    const std::string name = &app == &app_ ? "qdf" : "qdf " + app.get_name();
    return {kWrongUsage, what + "; try '" + name + " --help'"};
  }

  void RefuseExtras() {
    CLI::App& app = Chosen();
    std::vector<std::string> extras = app_.remaining(true);
    std::erase(extras, "--");  // which makes what follows it no option, and is listed all the same
    if (extras.empty()) return;
    const std::string& word = extras.front();
    if (word.size() > 1 && word.front() == '-') {
      std::vector<std::string> known;
      for (const CLI::Option* option : app.get_options()) {
        if (option->nonpositional()) known.push_back(option->get_name());
      }
      throw UnknownWord("option", word, known);
    }
    if (&app != &app_) throw UsageFault("nothing is known to do with " + Quoted(word));
    std::vector<std::string> known;
    for (const Entry& entry : entries_) known.emplace_back(entry.command->name);
    throw UnknownWord("command", word, known);
  }

  void ReadCommand(Invocation& invocation) {
    for (const Entry& entry : entries_) {
      if (!*entry.app) continue;
      invocation.command = entry.command;
      for (const CLI::Option* option : entry.options) {
        if (option->count() == 0) continue;
        invocation.arguments.Set(option->get_name(), option->results());
      }
      return;
    }
    throw UsageFault("a command is missing");
  }

  CLI::App app_;
  CLI::Option* folders_;
  CLI::Option* version_;
  std::vector<Entry> entries_;
};

}  // namespace

Invocation ParseCommandLine(int count, const char* const* words,
                            std::span<const Command* const> commands) {
  return Grammar(commands).Parse(count, words);
}
