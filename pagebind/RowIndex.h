// The closed ordered map that selection code uses as scratch. Keys are 32-bit integers or strings.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "pagebind/Object.h"
#include "pagebind/Value.h"

namespace GleanerSvc {

class IRowIndex : public virtual IObject {
  public:
    virtual void Reset(bool bFlag) = 0; // empties it; called first, always with False

    // bUnique True: a key that is there keeps its value. False: it takes the new one.
    virtual void Add(const Value& vKey, const Value& vValue, bool bUnique) = 0;

    virtual std::vector<Value> Keys() = 0; // ascending, at places 1 to Count; place 0 is not used
    virtual std::int32_t Count() = 0;      // the top place of that array
    virtual Value Item(const Value& vKey) = 0;

    // iFound: the key's value, 0 when the key is absent. A key that is present never gives 0, whatever was
    // stored under it.
    virtual void Find(std::string_view sKey, std::int16_t& iFound) = 0;
};

} // namespace GleanerSvc
