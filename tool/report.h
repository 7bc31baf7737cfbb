#pragma once

// What a command answers, told once for people and for programs.
//
// A report is one object. As JSON it stands as it is. As text its fields are laid out by their
// shape: a list of objects becomes a table, an object with the field "children" an outline, any
// other object a block of lines, and what remains one line each. A text whose label is empty is a
// paragraph. A field without a label is for programs only, and one without a key for people only.
// Texts may hold any bytes; whoever lays a report out makes them harmless.

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

struct Value;
struct Field;

using List = std::vector<Value>;

struct Object {
  Object();
  Object(std::initializer_list<Field> given, const char* between = " ");
  Object(const Object& other);
  Object(Object&& other) noexcept;
  Object& operator=(const Object& other);
  Object& operator=(Object&& other) noexcept;
  ~Object();

  void Add(Field field);

  // Null when no field has the key.
  const Value* Find(std::string_view key) const;

  std::vector<Field> fields;
  // Within a line an object is the values of its labelled fields with this between them; a flag
  // shows as its label in brackets when it is set.
  const char* joint = " ";
};

// Without a value: null in JSON, "-" in a table.
struct Value {
  Value() = default;
  Value(bool flag) : data(flag) {}
  Value(int number) : data(std::int64_t{number}) {}
  Value(unsigned int number) : data(std::int64_t{number}) {}
  Value(double number) : data(number) {}
  Value(const char* text) : data(std::string(text)) {}
  Value(std::string_view text) : data(std::string(text)) {}
  Value(std::string text) : data(std::move(text)) {}
  Value(List list) : data(std::move(list)) {}
  Value(Object object) : data(std::move(object)) {}

  std::variant<std::monostate, bool, std::int64_t, double, std::string, List, Object> data;
};

// By what they hold, keys and labels included. A number that is none equals itself.
bool operator==(const Value& a, const Value& b);

inline Value OrNull(const std::optional<std::string>& text) {
  return text ? Value(*text) : Value();
}

struct Field {
  const char* key;
  const char* label;
  Value value;
  std::optional<Value> brief{};  // what people see instead

  const Value& Shown() const { return brief ? *brief : value; }
};

// The field of a node of an outline that holds the nodes below it. Of the node's other fields the
// first makes its line; objects and numbers follow in brackets, texts and lists take lines of their
// own.
inline constexpr const char* kChildren = "children";

// Ends in a line break. ASCII only: what else a text holds is escaped, and bytes that are no UTF-8
// become U+FFFD.
std::string RenderJson(const Object& report);

// Aligned tables and lines for a terminal. With `bold` titles and headers stand out.
std::string RenderText(const Object& report, bool bold);
