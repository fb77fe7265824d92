// The keyed collection: ordered, 1-based, any-typed items with optional string keys that compare without
// regard to case. Parameter stores and selections are of this kind.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "pagebind/Object.h"
#include "pagebind/Sequence.h"
#include "pagebind/SlotIndex.h"
#include "pagebind/Value.h"

namespace GleanerSvc {

// Abstract, since a host may bring a collection of its own. Failures: a key that exists already fails an Add
// with duplicate key; an absent key fails with invalid call, and a place outside 1 to Count with subscript.
class IKeyedCollection : public virtual IObject {
  public:
    virtual void Add(const Value& vItem) = 0;
    virtual void Add(const Value& vItem, std::string_view sKey) = 0;
    // Text is a key; a number is a place, counted from 1.
    virtual Value Item(const Value& vKey) const = 0;
    virtual void Remove(const Value& vKey) = 0;
    virtual bool Holds(std::string_view sKey) const = 0;
    virtual std::int32_t Count() const = 0;
};

// Reads an item as an object of a given interface; a wrong one fails with type mismatch.
template<class T>
Ref<T> ItemAs(const IKeyedCollection& colItems, const Value& vKey) {
    return colItems.Item(vKey).template To<T>();
}

// The library's own. Access, removal by place and removal by key take O(log n) or better.
class KeyedCollection final : public IKeyedCollection {
  public:
    void Add(const Value& vItem) override;
    void Add(const Value& vItem, std::string_view sKey) override;
    Value Item(const Value& vKey) const override;
    void Remove(const Value& vKey) override;
    bool Holds(std::string_view sKey) const override;
    std::int32_t Count() const override;

    // The keys in order and in lower case, "*" for an item without one: "project samples *".
    std::string ToString() const;

  private:
    struct Entry {
        Value vItem;
        std::optional<std::string> oKey; // folded
    };

    std::size_t SlotOf(const Value& vKey) const;
    std::size_t Find(const std::string& sFolded, std::size_t nHash) const; // SlotIndex::NoSlot when absent
    void IndexAnew();

    Sequence<Entry> m_aoEntries;
    SlotIndex m_oIndex;
};

} // namespace GleanerSvc
