// Parameter records of the in-memory data store.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "models/StoreRecord.h"
#include "pagebind/Records.h"

namespace GleanerSvc::Models {

// The definition is written once; a second time fails with invalid call.
class AnalysisParameterRecord final : public IAnalysisParameter, public RecordOf<AnalysisParameterRecord> {
  public:
    static constexpr std::string_view ObjectName = "AnalysisParameter";

    AnalysisParameterRecord(Ref<const StoreSettings> oSettings, std::int32_t lParameterID, std::string sName)
        : RecordOf(std::move(oSettings), lParameterID), m_sName(std::move(sName)) {}

    std::string Name() override;
    std::int32_t ParameterID() override;
    void Definition(const Ref<IParameterDefinition>& oDefinition) override;

    const Ref<IParameterDefinition>& WrittenDefinition() const { return m_oDefinition; }

    std::string ToString() const override; // "7 Default definition=yes"

  private:
    std::string m_sName;
    Ref<IParameterDefinition> m_oDefinition;
};

// One object under two interfaces, since later steps reach the definition as a parameter record. Its two
// parts are opaque; they exist for the index 0, any other fails with subscript. It takes no definition of
// its own.
class ParameterDefinitionRecord final : public IParameterDefinition,
                                        public IAnalysisParameter,
                                        public RecordOf<ParameterDefinitionRecord> {
  public:
    static constexpr std::string_view ObjectName = "ParameterDefinition";

    ParameterDefinitionRecord(Ref<const StoreSettings> oSettings, std::int32_t lParameterID,
                              std::string sName);

    Ref<IObject> FirstPart(std::int32_t lIndex) override;
    Ref<IObject> SecondPart(std::int32_t lIndex) override;

    std::string Name() override;
    std::int32_t ParameterID() override;
    void Definition(const Ref<IParameterDefinition>& oDefinition) override;

    const Ref<IObject>& OwnFirstPart() const { return m_oFirstPart; }
    const Ref<IObject>& OwnSecondPart() const { return m_oSecondPart; }

    std::string ToString() const override; // "7 Default"

  private:
    std::string m_sName;
    Ref<IObject> m_oFirstPart;
    Ref<IObject> m_oSecondPart;
};

} // namespace GleanerSvc::Models
