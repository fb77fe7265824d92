// Class objects by GUID: what makes instances of the public classes, and keeps count of them.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <string_view>

#include "pagebind/Apartment.h"
#include "pagebind/ClassTable.h"

namespace GleanerSvc {

// Makes the instance of a class, in the apartment that it is to live in.
using Creator = std::function<Ref<IObject>(const Ref<Apartment>&)>;

// Instances made through a set of class objects, and locks held on it. Any thread may read and change it.
struct LifeCounts {
    std::atomic<std::int32_t> lInstances = 0;
    std::atomic<std::int32_t> lLocks = 0;
};

// Makes instances of one class. It may outlive the set that it came from.
class ClassObject {
  public:
    ClassObject(const PublicClass& oClass, Creator fnCreate, Ref<LifeCounts> oCounts)
        : m_pClass(&oClass), m_fnCreate(std::move(fnCreate)), m_oCounts(std::move(oCounts)) {}

    const PublicClass& Class() const { return *m_pClass; }

    // A new instance at each call. It counts until the last reference that stems from this one has gone. A
    // failure of the creator goes on, and a creator that makes nothing fails with object not set.
    Ref<IObject> CreateInstance(const Ref<Apartment>& oApartment) const;

  private:
    const PublicClass* m_pClass;
    Creator m_fnCreate;
    Ref<LifeCounts> m_oCounts;
};

// The creators stand in folders above this one: who links everything binds them, before the first use.
// Service is bound from the start.
class ClassObjects {
  public:
    ClassObjects();

    // Says how a public class is made; a second time replaces the first. A name that is no public class
    // fails with class not available.
    void Bind(std::string_view sClass, Creator fnCreate);

    // Fails with class not available, naming the GUID and its class where there is one, when no class has
    // that GUID or nobody has bound it.
    ClassObject Get(const Guid& oClassID) const;

    // Keeps the library loaded without an instance. Each lock wants its unlock; one too many fails with
    // invalid call.
    void LockServer(bool bLock);

    // No instance that was made through these class objects is alive, and no lock is held.
    bool CanUnloadNow() const;

  private:
    std::map<std::string_view, Creator> m_oCreators; // by class name
    Ref<LifeCounts> m_oCounts;
};

} // namespace GleanerSvc
