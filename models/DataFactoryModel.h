// The data factory over an in-memory store, and the global object that hands it out. Several factories may
// share one store.
#pragma once

#include <memory>
#include <string>

#include "models/DataStore.h"
#include "models/Journal.h"
#include "pagebind/DataStore.h"
#include "pagebind/Framework.h"

namespace GleanerSvc::Models {

// One object carries both interfaces, so make it with std::make_shared. Names compare exactly. A type, query,
// key name or ID that the store does not have fails with invalid call, naming it; only the ID of a query may
// be one without records.
class DataFactoryModel final : public IDataGlobals,
                               public IDataFactory,
                               public std::enable_shared_from_this<DataFactoryModel>,
                               private Journaled {
  public:
    explicit DataFactoryModel(Ref<DataStore> oStore)
        : Journaled(oStore->SharedJournal(), "DataFactory"), m_oStore(std::move(oStore)) {}

    Ref<IDataFactory> DataFactory() override;

    Ref<IObject> CreateRecord(std::string_view sType) override;
    Ref<IObject> GetRecord(std::string_view sType, std::string_view sKeyName, std::string_view sKeyValue,
                           std::int32_t lOption, bool bFlag) override;
    // A new collection of the store's own records at each call.
    Ref<IDataCollection> GetCollection(std::string_view sQuery, std::string_view sKeyName,
                                       std::string_view sKeyValue, std::string_view sOrder,
                                       std::int32_t lOption, bool bFlag) override;

    std::string ToString() const { return m_oStore->ToString(); }

  private:
    Ref<DataStore> m_oStore;
};

} // namespace GleanerSvc::Models
