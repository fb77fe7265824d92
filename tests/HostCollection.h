// A collection of the host's own, whose operations can fail as those of every closed object.
#pragma once

#include <string>
#include <utility>

#include "models/Journal.h"
#include "pagebind/KeyedCollection.h"

namespace GleanerSvc {

class HostCollection : public IKeyedCollection, Models::Journaled {
  public:
    HostCollection(Ref<Models::Journal> oJournal, Ref<IKeyedCollection> colInner, std::string sName = "Host")
        : Journaled(std::move(oJournal), std::move(sName)), m_colInner(std::move(colInner)) {}
    void Add(const Value& vItem) override { Called("Add", vItem).Add(vItem); }
    void Add(const Value& vItem, std::string_view sKey) override {
        Called("Add", vItem, sKey).Add(vItem, sKey);
    }
    Value Item(const Value& vKey) const override { return Called("Item", vKey).Item(vKey); }
    void Remove(const Value& vKey) override { Called("Remove", vKey).Remove(vKey); }
    bool Holds(std::string_view sKey) const override { return Called("Holds", sKey).Holds(sKey); }
    std::int32_t Count() const override { return Called("Count").Count(); }

  private:
    template<class... Args>
    IKeyedCollection& Called(std::string_view sOperation, const Args&... aArguments) const {
        Call(sOperation, aArguments...);
        return *m_colInner;
    }
    Ref<IKeyedCollection> m_colInner;
};

} // namespace GleanerSvc
