#include "tool/optionfields.h"

#include <charconv>
#include <limits>

#include "qdf/support/text.h"

namespace {

// The number that the float's shortest decimal form names: 0.1 rather than 0.10000000149.
Value Shown(float number) {
  char digits[32];
  const char* end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  double decimal = 0;
  std::from_chars(digits, end, decimal);
  return decimal;
}
template <class Number>
Value Shown(const Number& number) {
  return number;
}
template <std::size_t N>
Value Shown(const char (&text)[N]) {
  return FieldText(text);
}

template <class Number>
void Assign(Number& to, const Number& from) {
  to = from;
}
template <std::size_t N>
void Assign(char (&to)[N], const char (&from)[N]) {
  SetField(to, FieldText(from));
}

template <auto Member>
constexpr OptionField Own(const char* key, const char* label, bool isSetting = false) {
  return {key, label, isSetting, [](const ANewColorOpt& option) { return Shown(option.*Member); },
          [](ANewColorOpt& to, const ANewColorOpt& from) { Assign(to.*Member, from.*Member); }};
}

template <auto Member>
constexpr OptionField OfColorant(const char* key, const char* label, bool isSetting = false) {
  return {key, label, isSetting,
          [](const ANewColorOpt& option) { return Shown(option.Colorant.*Member); },
          [](ANewColorOpt& to, const ANewColorOpt& from) {
            Assign(to.Colorant.*Member, from.Colorant.*Member);
          }};
}

using Option = ANewColorOpt;

constexpr OptionField kFields[] = {
    OfColorant<&ColorantInfo::DisplayName>("displayName", "Colorant"),
    OfColorant<&ColorantInfo::InternalName>("internalName", "Internal"),
    OfColorant<&ColorantInfo::ColorDepth>("colorDepth", "Depth"),
    OfColorant<&ColorantInfo::IsSpotColor>("isSpotColor", "Spot"),
    OfColorant<&ColorantInfo::IsPrint>("isPrint", "Print"),
    Own<&Option::Shape>("shape", "Shape"),
    Own<&Option::Frequency>("frequency", "Frequency"),
    Own<&Option::Angle>("angle", "Angle"),
    Own<&Option::Setting0>("setting0", "S0", true),
    Own<&Option::Setting4>("setting4", "S4", true),
    Own<&Option::Setting5>("setting5", "S5", true),
    Own<&Option::Setting6>("setting6", "S6", true),
    Own<&Option::Setting7>("setting7", "S7", true),
    Own<&Option::Setting8>("setting8", "S8", true),
    Own<&Option::Setting9>("setting9", "S9", true),
    Own<&Option::Setting10>("setting10", "S10", true),
    OfColorant<&ColorantInfo::ColorantSetting5>("colorantSetting5", "C5", true),
};

// A curve's steps of 0.05 come out as 0.15000000000000002 and the like. What lies behind the digits
// that any double keeps is far below what the library's comparisons see in a curve.
double CurvePoint(double value) {
  constexpr int kDigits = std::numeric_limits<double>::digits10;
  char digits[32];
  const char* end =
      std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, kDigits).ptr;
  std::from_chars(digits, end, value);
  return value;
}
int CurvePoint(int flag) { return flag; }

template <class Number>
List ListOf(const Number (&numbers)[ANewColorOpt::kCurvePoints]) {
  List list;
  for (const Number number : numbers) list.emplace_back(CurvePoint(number));
  return list;
}

// In few words for people.
std::string CurveText(const ANewColorOpt& option) {
  const ANewColorOpt straight;
  int off = 0;
  for (int i = 0; i < ANewColorOpt::kCurvePoints; ++i) {
    off += option.CurveValues[i] != straight.CurveValues[i] ? 1 : 0;
  }
  return off == 0 ? "straight" : std::to_string(off) + (off == 1 ? " point off" : " points off");
}

class Differences {
 public:
  Differences(const ANewColorOpt& first, const ANewColorOpt& second)
      : first_(first), second_(second) {}

  // The field alone makes the difference between two records that are else the same.
  template <class Read, class Copy>
  void Add(const char* key, const std::string& label, const Value& point, Read read, Copy copy) {
    ANewColorOpt a;
    ANewColorOpt b;
    copy(a, first_);
    copy(b, second_);
    const Value one = read(first_);
    const Value other = read(second_);
    const bool requiresRip = a.ColorOptionRequireReRip(b) != 0;
    if (one == other && !requiresRip && !(a != b)) return;
    found_.push_back({key, label, point, one, other, requiresRip});
  }

  template <class Number>
  void AddPoints(const char* key, const char* label, Number (ANewColorOpt::*curve)[21]) {
    for (int i = 0; i < ANewColorOpt::kCurvePoints; ++i) {
      Add(
          key, label + std::to_string(i), i,
          [=](const ANewColorOpt& option) { return Value(CurvePoint((option.*curve)[i])); },
          [=](ANewColorOpt& to, const ANewColorOpt& from) { (to.*curve)[i] = (from.*curve)[i]; });
    }
  }

  std::vector<OptionDifference> Found() { return std::move(found_); }

 private:
  const ANewColorOpt& first_;
  const ANewColorOpt& second_;
  std::vector<OptionDifference> found_;
};

}  // namespace

const std::span<const OptionField> kOptionFields = kFields;

void AddCurve(const ANewColorOpt& option, Object& row) {
  row.Add({"curveValues", nullptr, ListOf(option.CurveValues)});
  row.Add({"curveFlags", nullptr, ListOf(option.CurveFlags)});
}

Object MakeOptionRow(int number, const ANewColorOpt& option) {
  Object row{{"record", "Record", number}};
  for (const OptionField& field : kFields) row.Add({field.key, field.label, field.read(option)});
  AddCurve(option, row);
  row.Add({nullptr, "Curve", CurveText(option)});
  return row;
}

std::vector<OptionDifference> CompareOptions(const ANewColorOpt& first,
                                             const ANewColorOpt& second) {
  Differences differences(first, second);
  for (const OptionField& field : kFields) {
    differences.Add(field.key, field.label, {}, field.read, field.copy);
  }
  differences.AddPoints("curveValues", "Curve value ", &ANewColorOpt::CurveValues);
  differences.AddPoints("curveFlags", "Curve flag ", &ANewColorOpt::CurveFlags);
  return differences.Found();
}
