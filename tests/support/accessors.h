#pragma once

#include <zel/CZelPoint.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

// A class whose values are plain fields, seen through its interface.

namespace ZelTest {

/// A get and a set of one value.
template <class I>
struct CAccess {
    std::string name;
    std::function<void(I&)> set;
    std::function<bool(const I&)> holds;
};

template <class T>
bool isSame(const T& a, const T& b)
{
    return a == b;
}

inline bool isSame(const OvZel::CZelPoint& a, const OvZel::CZelPoint& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

template <class I, class R, class A>
CAccess<I> access(const char* name, R (I::*get)() const, void (I::*set)(A),
                  std::type_identity_t<std::decay_t<A>> value)
{
    using TStored = std::conditional_t<std::is_pointer_v<R>, std::string, std::decay_t<A>>;
    const TStored stored = value;
    return {name, [set, value](I& object) { (object.*set)(value); },
            [get, stored](const I& object) {
                return isSame(static_cast<TStored>((object.*get)()), stored);
            }};
}

/// No new object holds the values, and one in which all of them are set holds them all.
template <class I>
void expectAccessors(I& object, const std::vector<CAccess<I>>& accesses)
{
    for (const CAccess<I>& each : accesses)
        EXPECT_FALSE(each.holds(object)) << each.name << " of a new object";
    for (const CAccess<I>& each : accesses)
        each.set(object);
    for (const CAccess<I>& each : accesses)
        EXPECT_TRUE(each.holds(object)) << each.name;
}

} // namespace ZelTest

/// The pair `getNAME` and `setNAME` with a value that a new object does not have.
#define ACCESS(interface, name, value)                                                             \
    ZelTest::access(#name, &interface::get##name, &interface::set##name, value)
