// What the records of the in-memory data store have in common. A million of them may stand in one store, so
// a record carries no names and no journal of its own.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "models/Journal.h"
#include "pagebind/Object.h"

namespace GleanerSvc::Models {

// Shared by a store and all its records.
struct StoreSettings {
    Ref<Journal> oJournal;
    std::size_t nNameWidth = 20;  // names and descriptions are padded with blanks to this many bytes
    bool bSeparateCopies = false; // a plate's collections hold other objects than its wells give

    std::string Padded(std::string_view sText) const;
};

// A record with its ID, which a collection finds it by. ID and state are read here without an entry in the
// journal.
class StoreRecord : public virtual IObject {
  public:
    std::int32_t RecordID() const { return m_lRecordID; }
    virtual std::string ToString() const = 0;

  protected:
    StoreRecord(Ref<const StoreSettings> oSettings, std::int32_t lRecordID)
        : m_oSettings(std::move(oSettings)), m_lRecordID(lRecordID) {}
    void ChangeRecordID(std::int32_t lRecordID) { m_lRecordID = lRecordID; }
    const Ref<const StoreSettings>& Settings() const { return m_oSettings; }

  private:
    Ref<const StoreSettings> m_oSettings;
    std::int32_t m_lRecordID;
};

// The base of a kind of record, which brings its name as T::ObjectName.
template<class T>
class RecordOf : public StoreRecord {
  protected:
    using StoreRecord::StoreRecord;
    template<class... Args>
    void Call(std::string_view sOperation, const Args&... aArguments) const {
        Settings()->oJournal->Call(T::ObjectName, sOperation, aArguments...);
    }
};

} // namespace GleanerSvc::Models
