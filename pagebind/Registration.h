// Registration of the library's classes, written against a small abstract registry.
#pragma once

#include <string_view>

namespace GleanerSvc {

// The part of the platform's registry that holds classes. Keys are paths below it, their parts joined by "\".
class IRegistry {
  public:
    IRegistry() = default;
    IRegistry(const IRegistry&) = delete;
    IRegistry& operator=(const IRegistry&) = delete;
    virtual ~IRegistry() = default;

    // Writes a text; makes the key, and the keys on the way to it, where they are absent. The name "" is the
    // key's default text.
    virtual void SetValue(std::string_view sKey, std::string_view sName, std::string_view sValue) = 0;
    virtual bool HasKey(std::string_view sKey) = 0;
    // Removes a key that is there, with all below it.
    virtual void DeleteTree(std::string_view sKey) = 0;
};

// Writes the type library and the public classes, over what may be there already. Each of them is registered
// whole or not at all: where a write fails, what stands of that one is taken out again, and the failure goes
// on under its own number, naming the class and the key. The classes before it stay registered.
//
// sModulePath: of the file that holds the classes.
void Register(IRegistry& oRegistry, std::string_view sModulePath);

// Removes all that Register writes. What is absent is no failure. A failure keeps nothing else from being
// removed; the first one goes on in the end, naming the class and the key.
void Unregister(IRegistry& oRegistry);

} // namespace GleanerSvc
