#include "pagebind/Object.h"

#include <string>

#include "pagebind/Value.h"

namespace GleanerSvc {

namespace {
Failure MemberNotFound(std::string_view sName) {
    return Failure(FailureNumber::MemberNotFound, "Object",
                   "The object has no member \"" + std::string(sName) + "\".");
}
} // namespace

Value IObject::GetMember(std::string_view sName) const { throw MemberNotFound(sName); }

void IObject::PutMember(std::string_view sName, const Value& /*vValue*/) { throw MemberNotFound(sName); }

} // namespace GleanerSvc
