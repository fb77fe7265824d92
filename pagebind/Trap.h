// The failure trap and its two tails. A trapped procedure is its body and one word:
//
//     void LoadPlates()        { Raising ("LoadPlates",        [&] { ... }); }
//     void cmbProjects_Click() { Terminal("cmbProjects_Click", [&] { ... }); }
//
// Raising: the failure is reported with bShowUser False and raised again to the caller. Terminal: it is
// reported with bShowUser True and the procedure returns as if it had ended normally. Nothing is rolled back.
// The name under which a procedure reports is a literal and need not be the procedure's own.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "pagebind/Apartment.h"

namespace GleanerSvc {

class Trapped {
  public:
    Trapped(const Trapped&) = delete;
    Trapped& operator=(const Trapped&) = delete;

  protected:
    explicit Trapped(Ref<Apartment> oApartment) : m_oApartment(std::move(oApartment)) {}
    ~Trapped() = default;

    // The run-time class name of the object, as reports carry it.
    virtual std::string ClassName() const = 0;

    Apartment& Context() const { return *m_oApartment; }
    const Ref<Apartment>& SharedContext() const { return m_oApartment; }
    IPlatform& Platform() const { return m_oApartment->Platform(); }

    template<class F>
    auto Raising(std::string_view sProcedure, F&& fnBody) const {
        try {
            return fnBody();
        } catch (...) {
            throw RaisingTail(sProcedure, Failure::Pending());
        }
    }

    template<class F>
    void Terminal(std::string_view sProcedure, F&& fnBody) const {
        try {
            fnBody();
        } catch (...) {
            TerminalTail(sProcedure, Failure::Pending());
        }
    }

  private:
    enum class Gates { Closed, SecondClosed, Open };

    void TerminalTail(std::string_view sProcedure, const Failure& oPending) const;
    Failure RaisingTail(std::string_view sProcedure, const Failure& oPending) const; // what is raised again
    void Report(std::string_view sProcedure, const Failure& oPending, bool bShowUser) const;
    Gates AskGates() const;
    [[noreturn]] void StopAndFailAgain(const Failure& oPending) const;

    Ref<Apartment> m_oApartment;
};

} // namespace GleanerSvc
