// Reports for people.

#include <algorithm>
#include <sstream>

#include "tool/printable.h"
#include "tool/report.h"
#include "tool/reportline.h"
#include "tool/reporttable.h"

namespace {

constexpr std::size_t kIndent = 2;

std::string LabelledLine(const Field& field) {
  return std::string(field.label) + ": " + MakePrintable(LineText(field.Shown())).text;
}

class TextLayout {
 public:
  explicit TextLayout(bool bold) : bold_(bold) {}

  std::string Render(const Object& report) {
    Object loose;  // the lines that stand together until something larger comes
    for (const Field& field : report.fields) {
      if (field.label == nullptr) continue;
      const Object* object = AsObject(field.Shown());
      const List* rows = AsTable(field.Shown());
      if (IsParagraph(field)) {
        AddBlock(nullptr, std::exchange(loose, {}));
        AddParagraph(std::get<std::string>(field.Shown().data));
        continue;
      }
      if (object == nullptr && rows == nullptr) {
        loose.Add(field);
        continue;
      }
      AddBlock(nullptr, std::exchange(loose, {}));
      if (rows != nullptr) {
        AddTable(field.label, *rows);
      } else if (HasChildren(*object)) {
        AddOutline(field.label, *object);
      } else {
        AddBlock(field.label, *object);
      }
    }
    AddBlock(nullptr, loose);
    return std::move(text_);
  }

 private:
  using FieldPlace = std::vector<Field>::const_iterator;

  static const List* AsTable(const Value& value) {
    const List* list = AsList(value);
    return list != nullptr && list->empty() ? list : AsRows(value);
  }
  static bool HasChildren(const Object& object) {
    return std::any_of(object.fields.begin(), object.fields.end(), IsChildren);
  }
  static bool IsChildren(const Field& field) {
    return field.key != nullptr && std::string_view(field.key) == kChildren;
  }

  std::string Bold(const std::string& line) const {
    return bold_ && !line.empty() ? "\x1b[1m" + line + "\x1b[0m" : line;
  }

  void StartParagraph() {
    if (!text_.empty()) text_ += '\n';
  }

  void AddLine(std::size_t indent, const std::string& printable) {
    text_.append(indent, ' ').append(printable).append(1, '\n');
  }

  static bool IsParagraph(const Field& field) {
    return *field.label == '\0' && std::holds_alternative<std::string>(field.Shown().data);
  }

  void AddParagraph(const std::string& text) {
    constexpr int kWidth = 80;
    StartParagraph();
    std::istringstream words(MakePrintable(text).text);
    int column = 0;
    for (std::string word; words >> word;) {
      const int width = MakePrintable(word).columns;
      const bool fits = column > 0 && column + 1 + width <= kWidth;
      if (column > 0) text_ += fits ? ' ' : '\n';
      column = fits ? column + 1 + width : width;
      text_ += word;
    }
    text_ += '\n';
  }

  void AddTable(const char* label, const List& rows) {
    StartParagraph();
    if (rows.empty()) return AddLine(0, Bold(label) + ": none");
    AddLine(0, Bold(label + (" (" + std::to_string(rows.size()) + ')')));
    const Table table(rows);
    AddLine(kIndent, Bold(table.Line(0)));
    for (std::size_t i = 1; i < table.LineCount(); ++i) AddLine(kIndent, table.Line(i));
  }

  void AddBlock(const char* title, const Object& object) {
    if (object.fields.empty()) return;
    StartParagraph();
    if (title != nullptr) AddLine(0, Bold(title));
    std::size_t width = 0;
    for (const Field& field : object.fields) {
      if (field.label != nullptr) width = std::max(width, std::string_view(field.label).size());
    }
    for (const Field& field : object.fields) {
      if (field.label == nullptr) continue;
      std::string line = std::string(field.label) + ':';
      line.resize(width + 1 + kIndent, ' ');
      const std::string text = MakePrintable(LineText(field.Shown())).text;
      AddLine(title != nullptr ? kIndent : 0, line + (text.empty() ? "-" : text));
    }
  }

  void AddOutline(const char* title, const Object& root) {
    StartParagraph();
    const Value& children =
        std::find_if(root.fields.begin(), root.fields.end(), IsChildren)->Shown();
    const char* none = AsList(children)->empty() ? ": none" : "";
    AddNode(Bold(title) + none, root, root.fields.begin(), 0);
  }

  // The line of a node begins with the printable head; `rest` is the first of the fields that
  // aren't in it.
  void AddNode(const std::string& head, const Object& node, FieldPlace rest, std::size_t indent) {
    std::string notes;
    for (FieldPlace field = rest; field != node.fields.end(); ++field) {
      if (field->label == nullptr || !IsNote(*field)) continue;
      notes += (notes.empty() ? " (" : "; ") + LabelledLine(*field);
    }
    AddLine(indent, notes.empty() ? head : head + notes + ')');
    for (FieldPlace field = rest; field != node.fields.end(); ++field) {
      if (IsChildren(*field)) {
        for (const Value& child : *AsList(field->Shown()))
          AddChild(*AsObject(child), indent + kIndent);
      } else if (field->label != nullptr && !IsNote(*field)) {
        AddLine(indent + kIndent, LabelledLine(*field));
      }
    }
  }

  static bool IsNote(const Field& field) {
    return AsObject(field.Shown()) != nullptr ||
           std::holds_alternative<std::int64_t>(field.Shown().data);
  }

  void AddChild(const Object& node, std::size_t indent) {
    const auto head = std::find_if(node.fields.begin(), node.fields.end(),
                                   [](const Field& field) { return field.label != nullptr; });
    AddNode(LabelledLine(*head), node, head + 1, indent);
  }

  bool bold_;
  std::string text_;
};

}  // namespace

std::string RenderText(const Object& report, bool bold) { return TextLayout(bold).Render(report); }
