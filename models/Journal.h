// The journal of calls on closed objects, and the seam through which tests inject failures. Every operation
// of every model makes its entry first, before it does anything.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pagebind/Failure.h"
#include "pagebind/Object.h"
#include "pagebind/Value.h"

namespace GleanerSvc::Models {

enum class FailureMode { Once, FromThenOn };

class Journal {
  public:
    // An operation's first statement: Call("grdAvailable", "LockUpdate", bLock). Records the call and counts
    // it; raises the injected failure when its turn has come, in place of the operation.
    template<class... Args>
    void Call(std::string_view sObject, std::string_view sOperation, const Args&... aArguments) {
        ++m_nCalls;
        if (m_bRecording) {
            std::string sArguments;
            (AppendArgument(sArguments, aArguments), ...);
            Record(sObject, sOperation, sArguments);
        }
        if (m_oInjected && m_nCalls >= m_nFailAt) Fail();
    }

    // Entries are kept while recording is on, which it is at first. Counting and injected failures go on
    // anyway.
    void Recording(bool bOn) { m_bRecording = bOn; }
    void Clear() { m_asEntries.clear(); }

    // "grdAvailable.LockUpdate(True)", in order.
    const std::vector<std::string>& Entries() const { return m_asEntries; }
    // Those that begin with a text: of one object ("grdAvailable."), or of one operation of it.
    std::vector<std::string> EntriesOf(std::string_view sBeginning) const;
    std::int64_t Calls() const { return m_nCalls; }

    // Fails the nCall-th call from now, counted from 1; later calls succeed again, or fail as well.
    void FailCall(std::int64_t nCall, const Failure& oFailure, FailureMode eMode = FailureMode::Once);
    // The injected failure was raised at least once.
    bool HasFailed() const { return m_bFailed; }
    void StopFailing() { m_oInjected.reset(); }

    // The entries, one a line.
    std::string ToString() const;

  private:
    static void AppendArgument(std::string& sArguments, const Value& vArgument);
    static void AppendArgument(std::string& sArguments, const Failure& oArgument);
    void Record(std::string_view sObject, std::string_view sOperation, std::string_view sArguments);
    void Fail();

    bool m_bRecording = true;
    std::vector<std::string> m_asEntries;
    std::int64_t m_nCalls = 0;
    std::optional<Failure> m_oInjected;
    FailureMode m_eMode = FailureMode::Once;
    std::int64_t m_nFailAt = 0;
    bool m_bFailed = false;
};

// The base of a model: the journal that it writes to, under its object's name.
class Journaled {
  protected:
    Journaled(Ref<Journal> oJournal, std::string sObject)
        : m_oJournal(std::move(oJournal)), m_sObject(std::move(sObject)) {}
    template<class... Args>
    void Call(std::string_view sOperation, const Args&... aArguments) const {
        m_oJournal->Call(m_sObject, sOperation, aArguments...);
    }
    const Ref<Journal>& SharedJournal() const { return m_oJournal; }
    const std::string& ObjectName() const { return m_sObject; }

  private:
    Ref<Journal> m_oJournal;
    std::string m_sObject;
};

} // namespace GleanerSvc::Models
