#include "pagebind/ClassObjects.h"

#include <algorithm>
#include <string>
#include <utility>

#include "pagebind/Service.h"

namespace GleanerSvc {

namespace {

Failure NotAvailable(const std::string& sTrouble) {
    return Failure(FailureNumber::ClassNotAvailable, std::string(LibraryName), sTrouble);
}

// Counts one instance for as long as it lives.
class InstanceCount {
  public:
    explicit InstanceCount(Ref<LifeCounts> oCounts) : m_oCounts(std::move(oCounts)) {
        ++m_oCounts->lInstances;
    }
    InstanceCount(const InstanceCount&) = delete;
    InstanceCount& operator=(const InstanceCount&) = delete;
    ~InstanceCount() { --m_oCounts->lInstances; }

  private:
    Ref<LifeCounts> m_oCounts;
};

// The instance ends before its count does.
struct CountedInstance {
    explicit CountedInstance(Ref<LifeCounts> oCounts) : oCount(std::move(oCounts)) {}

    InstanceCount oCount;
    Ref<IObject> oInstance;
};

} // namespace

Ref<IObject> ClassObject::CreateInstance(const Ref<Apartment>& oApartment) const {
    const auto oCounted = std::make_shared<CountedInstance>(m_oCounts);
    oCounted->oInstance = m_fnCreate(oApartment);
    return {oCounted, &Deref(oCounted->oInstance)};
}

ClassObjects::ClassObjects() : m_oCounts(std::make_shared<LifeCounts>()) {
    Bind("Service", [](const Ref<Apartment>& oApartment) { return std::make_shared<Service>(oApartment); });
}

void ClassObjects::Bind(std::string_view sClass, Creator fnCreate) {
    const auto aoClasses = PublicClasses();
    const auto itClass = std::find_if(aoClasses.begin(), aoClasses.end(),
                                      [&](const PublicClass& oClass) { return oClass.sName == sClass; });
    if (itClass == aoClasses.end()) {
        throw NotAvailable("The library has no class \"" + std::string(sClass) + "\".");
    }
    m_oCreators[itClass->sName] = std::move(fnCreate);
}

ClassObject ClassObjects::Get(const Guid& oClassID) const {
    const PublicClass* pClass = FindClass(oClassID);
    if (!pClass) throw NotAvailable("The library has no class " + oClassID.BracedText() + ".");
    const auto itCreator = m_oCreators.find(pClass->sName);
    if (itCreator == m_oCreators.end()) {
        throw NotAvailable("Nothing makes the class " + std::string(pClass->sName) + " " +
                           oClassID.BracedText() + ".");
    }
    return {*pClass, itCreator->second, m_oCounts};
}

void ClassObjects::LockServer(bool bLock) {
    if (bLock) {
        ++m_oCounts->lLocks;
    } else if (--m_oCounts->lLocks < 0) {
        ++m_oCounts->lLocks;
        throw Failure(FailureNumber::InvalidCall, std::string(LibraryName),
                      "The library is unlocked more often than it was locked.");
    }
}

bool ClassObjects::CanUnloadNow() const { return m_oCounts->lInstances == 0 && m_oCounts->lLocks == 0; }

} // namespace GleanerSvc
