// A record as the plate pages handle it: an IResult or an ISample, by what both have.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>

#include "pagebind/Records.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

// Holds the record; it may hold nothing, and then whatever asks the record fails with object not set.
class PlateItem {
  private:
    static std::int32_t IDOf(IResult& oResult) { return oResult.ResultID(); }
    static std::int32_t IDOf(ISample& oSample) { return oSample.SampleID(); }

    template<class F>
    auto Visit(F&& fnVisit) const {
        return std::visit([&](const auto& oRecord) { return fnVisit(Deref(oRecord)); }, m_oRecord);
    }

  public:
    explicit PlateItem(Ref<IResult> oResult) : m_oRecord(std::move(oResult)) {}
    explicit PlateItem(Ref<ISample> oSample) : m_oRecord(std::move(oSample)) {}

    bool IsThere() const {
        return std::visit([](const auto& oRecord) { return oRecord != nullptr; }, m_oRecord);
    }
    Ref<IObject> Record() const {
        return std::visit([](const auto& oRecord) { return Ref<IObject>(oRecord); }, m_oRecord);
    }
    std::string Key() const { // the ID's decimal text
        return DecimalText(Visit([](auto& oRecord) { return IDOf(oRecord); }));
    }
    std::string Name() const {
        return Visit([](auto& oRecord) { return oRecord.Name(); });
    }
    std::string Description() const { // "" for a sample, which has none
        const auto* pResult = std::get_if<Ref<IResult>>(&m_oRecord);
        return pResult ? Deref(*pResult).Description() : "";
    }
    std::int32_t PlateID() const {
        return Visit([](auto& oRecord) { return oRecord.PlateID(); });
    }
    std::int32_t ProjectID() const {
        return Visit([](auto& oRecord) { return oRecord.ProjectID(); });
    }
    Date DateOf(bool bLastModified) const {
        return Visit([bLastModified](auto& oRecord) {
            return bLastModified ? oRecord.DateLastModified() : oRecord.DateCollected();
        });
    }
    bool IsSelected() const { // the mark
        return Visit([](auto& oRecord) { return oRecord.IsSelected(); });
    }
    void IsSelected(bool bSelected) const {
        Visit([bSelected](auto& oRecord) { oRecord.IsSelected(bSelected); });
    }

  private:
    std::variant<Ref<IResult>, Ref<ISample>> m_oRecord;
};

} // namespace GleanerSvc
