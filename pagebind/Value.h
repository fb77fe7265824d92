// The any-typed value: a value that carries its own type, used where a closed interface takes one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "pagebind/Date.h"
#include "pagebind/Object.h"

namespace GleanerSvc {

using Int32Array = std::vector<std::int32_t>;
using ObjectArray = std::vector<Ref<IObject>>;

class Value {
  public:
    // Implicit on purpose: a closed interface's any-typed argument takes each of these as it stands.
    Value() = default; // empty
    Value(bool bValue) : m_oHeld(bValue) {}
    Value(std::int16_t iValue) : m_oHeld(iValue) {}
    Value(std::int32_t lValue) : m_oHeld(lValue) {}
    Value(double dValue) : m_oHeld(dValue) {}
    Value(Date dtValue) : m_oHeld(dtValue) {}
    Value(std::string sValue) : m_oHeld(std::move(sValue)) {}
    Value(std::string_view sValue) : m_oHeld(std::string(sValue)) {}
    Value(const char* sValue) : m_oHeld(std::string(sValue)) {}
    Value(Ref<IObject> oValue) : m_oHeld(std::move(oValue)) {}
    Value(std::nullptr_t) : m_oHeld(Ref<IObject>()) {}
    template<class T>
    requires std::is_base_of_v<IObject, T> Value(const Ref<T>& oValue) : m_oHeld(Ref<IObject>(oValue)) {}
    template<class T>
    Value(T* pValue) = delete; // a pointer is no Boolean
    Value(Int32Array alValue) : m_oHeld(std::move(alValue)) {}
    Value(ObjectArray aoValue) : m_oHeld(std::move(aoValue)) {}

    bool IsEmpty() const { return Holds<std::monostate>(); }
    bool IsText() const { return Holds<std::string>(); }
    bool IsObject() const { return Holds<Ref<IObject>>(); }
    bool IsNumber() const; // Boolean, an integer or a double

    // Checked conversions. What has no meaning in the wanted type fails with type mismatch, what does not
    // fit fails with overflow. Empty reads as False, 0, "" and nothing; Boolean True reads as -1; text
    // reads as the number that it spells; a number reads as decimal text.
    bool ToBool() const;
    std::int16_t ToInt16() const;
    std::int32_t ToInt32() const;
    double ToDouble() const;
    Date ToDate() const;
    std::string ToText() const; // a date has no text here: that is the platform service's
    Ref<IObject> ToObject() const;
    template<class T>
    Ref<T> To() const {
        return Cast<T>(ToObject());
    }
    const Int32Array& ToInt32Array() const;
    const ObjectArray& ToObjectArray() const;

    // What a report or a journal shows: the text in quotes, a number as it is, "nothing", "object", "empty",
    // "[1, 2]".
    std::string ToString() const;

  private:
    template<class T>
    bool Holds() const {
        return std::holds_alternative<T>(m_oHeld);
    }

    std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, Date, std::string, Ref<IObject>,
                 Int32Array, ObjectArray>
        m_oHeld;
};

} // namespace GleanerSvc
