#include "pagebind/Value.h"

#include <array>
#include <charconv>
#include <cmath>

#include "pagebind/Numbers.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

template<class... F>
struct Overloaded : F... {
    using F::operator()...;
};
template<class... F>
Overloaded(F...) -> Overloaded<F...>;

[[noreturn]] void Mismatch() { throw Failure::Of(FailureNumber::TypeMismatch); }

// The shortest text that reads back as the number: plain digits, an exponent only for the very large and the
// very small.
std::string NumberText(double dNumber) {
    const double dSize = std::fabs(dNumber);
    const bool bPlain = dSize == 0 || (dSize >= 1e-4 && dSize < 1e15);
    std::array<char, 32> aDigits{};
    char* pEnd = std::to_chars(aDigits.data(), aDigits.data() + aDigits.size(), dNumber,
                               bPlain ? std::chars_format::fixed : std::chars_format::scientific)
                     .ptr;
    return {aDigits.data(), pEnd};
}

// Each alternative as a number, or type mismatch.
const auto AsNumber = Overloaded{
    [](std::monostate) { return 0.0; },
    [](bool bValue) { return bValue ? -1.0 : 0.0; },
    [](std::int16_t iValue) { return static_cast<double>(iValue); },
    [](std::int32_t lValue) { return static_cast<double>(lValue); },
    [](double dValue) { return dValue; },
    [](Date dtValue) { return dtValue.Serial(); },
    [](const std::string& sValue) { return ToNumber(sValue); },
    [](const auto&) -> double { Mismatch(); },
};

std::string JoinNumbers(const Int32Array& alValues) {
    std::string sText;
    for (const auto lValue : alValues) sText += (sText.empty() ? "" : ", ") + DecimalText(lValue);
    return "[" + sText + "]";
}

} // namespace

bool Value::IsNumber() const {
    return Holds<bool>() || Holds<std::int16_t>() || Holds<std::int32_t>() || Holds<double>();
}

bool Value::ToBool() const {
    if (const auto* pText = std::get_if<std::string>(&m_oHeld)) {
        if (EqualsIgnoringCase(*pText, "True")) return true;
        if (EqualsIgnoringCase(*pText, "False")) return false;
    }
    return ToDouble() != 0;
}

std::int16_t Value::ToInt16() const { return GleanerSvc::ToInt16(ToDouble()); }

std::int32_t Value::ToInt32() const {
    if (const auto* pNumber = std::get_if<std::int32_t>(&m_oHeld)) return *pNumber;
    return GleanerSvc::ToInt32(ToDouble());
}

double Value::ToDouble() const { return std::visit(AsNumber, m_oHeld); }

Date Value::ToDate() const {
    if (const auto* pDate = std::get_if<Date>(&m_oHeld)) return *pDate;
    if (IsText()) Mismatch();
    return Date(ToDouble());
}

std::string Value::ToText() const {
    return std::visit(Overloaded{
                          [](std::monostate) { return std::string(); },
                          [](bool bValue) { return std::string(bValue ? "True" : "False"); },
                          [](std::int16_t iValue) { return DecimalText(iValue); },
                          [](std::int32_t lValue) { return DecimalText(lValue); },
                          [](double dValue) { return NumberText(dValue); },
                          [](const std::string& sValue) { return sValue; },
                          [](const auto&) -> std::string { Mismatch(); },
                      },
                      m_oHeld);
}

Ref<IObject> Value::ToObject() const {
    if (const auto* pObject = std::get_if<Ref<IObject>>(&m_oHeld)) return *pObject;
    if (!IsEmpty()) Mismatch();
    return nullptr;
}

const Int32Array& Value::ToInt32Array() const {
    if (const auto* pArray = std::get_if<Int32Array>(&m_oHeld)) return *pArray;
    Mismatch();
}

const ObjectArray& Value::ToObjectArray() const {
    if (const auto* pArray = std::get_if<ObjectArray>(&m_oHeld)) return *pArray;
    Mismatch();
}

std::string Value::ToString() const {
    return std::visit(
        Overloaded{
            [](std::monostate) { return std::string("empty"); },
            [](const std::string& sValue) { return '"' + sValue + '"'; },
            [](Date dtValue) { return "date " + NumberText(dtValue.Serial()); },
            [](const Ref<IObject>& oValue) { return std::string(oValue ? "object" : "nothing"); },
            [](const Int32Array& alValue) { return JoinNumbers(alValue); },
            [](const ObjectArray& aoValue) { return DecimalText(std::ssize(aoValue)) + " objects"; },
            [this](const auto&) { return ToText(); },
        },
        m_oHeld);
}

} // namespace GleanerSvc
