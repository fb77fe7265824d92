// The root of every object that crosses an interface, and the one way to hold and to cast one.
#pragma once

#include <memory>
#include <string_view>

#include "pagebind/Failure.h"

namespace GleanerSvc {

class Value;

// A counted reference. Records and closed objects are held by reference and never copied; an empty
// reference is "nothing".
template<class T>
using Ref = std::shared_ptr<T>;

// Root class. Interfaces derive from it virtually, so that one object can carry several of them.
class IObject {
  public:
    IObject(const IObject&) = delete;
    IObject& operator=(const IObject&) = delete;
    virtual ~IObject() = default;

    // Members reached by name at run time. An object that does not have the member fails with
    // FailureNumber::MemberNotFound.
    virtual Value GetMember(std::string_view sName) const;
    virtual void PutMember(std::string_view sName, const Value& vValue);

  protected:
    IObject() = default;
};

// The same object seen through another of its interfaces. Nothing stays nothing; an object without the
// interface fails with type mismatch.
template<class T, class S>
Ref<T> Cast(const Ref<S>& oObject) {
    if (!oObject) return nullptr;
    if (auto oCast = std::dynamic_pointer_cast<T>(oObject)) return oCast;
    throw Failure::Of(FailureNumber::TypeMismatch);
}

// The object behind a reference; nothing fails with "object not set".
template<class T>
T& Deref(const Ref<T>& oObject) {
    if (!oObject) throw Failure::Of(FailureNumber::ObjectNotSet);
    return *oObject;
}

} // namespace GleanerSvc
