// The ordered map that selection code uses as scratch.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "models/Journal.h"
#include "models/KeyTable.h"
#include "pagebind/RowIndex.h"

namespace GleanerSvc::Models {

// Integers come before strings. Strings are ordered, and are the same key, without regard to case; a key
// keeps the spelling that it was first added with. A key that is neither fails with type mismatch, an absent
// one with invalid call, naming it. Adding and looking up take constant time, Keys sorts.
class RowIndexModel final : public IRowIndex, private Journaled {
  public:
    explicit RowIndexModel(Ref<Journal> oJournal) : Journaled(std::move(oJournal), "RowIndex") {}

    void Reset(bool bFlag) override;
    void Add(const Value& vKey, const Value& vValue, bool bUnique) override;
    std::vector<Value> Keys() override;
    std::int32_t Count() override;
    Value Item(const Value& vKey) override;
    // String keys only. The value where it is a number of 16 bits other than 0, and -1 otherwise.
    void Find(std::string_view sKey, std::int16_t& iFound) override;

    std::string ToString() const; // "1=empty 40000=7 \"a\"=1", in the order of Keys

  private:
    struct NumberRules {
        static std::size_t Hash(std::int32_t lKey);
        static bool Equal(std::int32_t lLeft, std::int32_t lRight) { return lLeft == lRight; }
        static bool Less(std::int32_t lLeft, std::int32_t lRight) { return lLeft < lRight; }
    };
    struct TextRules {
        static std::size_t Hash(std::string_view sKey);
        static bool Equal(std::string_view sLeft, std::string_view sRight);
        static bool Less(std::string_view sLeft, std::string_view sRight);
    };

    KeyTable<std::int32_t, std::int32_t, Value, NumberRules> m_oNumbers;
    KeyTable<std::string, std::string_view, Value, TextRules> m_oTexts;
};

} // namespace GleanerSvc::Models
