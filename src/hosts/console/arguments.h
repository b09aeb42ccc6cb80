#pragma once

#include "hosts/console/session.h"

#include <string>

namespace tavo::console {

// A whole number that fits 32 bits; fails with a text in `outcome`.
bool Read_Whole(const std::string& word, int& value, Outcome& outcome);
// The same from 1 on.
bool Read_Positive(const std::string& word, int& value, Outcome& outcome);
bool Read_Number(const std::string& word, double& value, Outcome& outcome);

// A control of kind T by its name, that a person can work now; null, with the
// reason in `outcome`, otherwise. `kind` is what it should have been.
template <class T>
T* Reach_Kind(Session& session, const std::string& name, const char* kind, Outcome& outcome)
{
    Named found;
    if (!session.Find(name, found, outcome))
        return nullptr;
    auto* const control = dynamic_cast<T*>(found.Target);
    if (control == nullptr) {
        outcome.Fail(name + " is no " + kind);
        return nullptr;
    }
    return session.Reach(name, found, outcome) ? control : nullptr;
}

} // namespace tavo::console
