// The switches that tools/mutate puts into a copy of the engine: each does what stood there, until its mutant is the active one.
// What is evaluated by the compiler is never a mutant.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <type_traits>

namespace mutate {

constexpr uint32_t kNoMutant = 0x7FFFFFFF;
constexpr uint32_t kMostMutants = 1u << 19;  // plan.py refuses an engine that needs more

inline uint32_t active = kNoMutant;
inline uint64_t steps = 0;
inline uint64_t stepLimit = UINT64_MAX;
inline unsigned char reached[kMostMutants];

[[noreturn]] void GiveUp();  // more steps than the unchanged engine would ever make

// Which alternative of a switch is active: 0 for its first one, and a number that no switch has when it is none of them.
inline uint32_t Reach(uint32_t first)
{
    reached[first] = 1;
    if (++steps > stepLimit)
        GiveUp();
    return active - first;
}

constexpr uint32_t At(uint32_t first)
{
    return __builtin_is_constant_evaluated() ? kNoMutant : Reach(first);
}

// Keeps an expression from being evaluated by the compiler: for what need not be.
inline uint32_t Now(uint32_t first)
{
    return first;
}

// ---- comparisons: the neighbouring one, and the opposite, told by the operator that stands there (a type may have no other)

template <class A, class B>
constexpr bool Less(uint32_t first, const A& a, const B& b)
{
    const uint32_t at = At(first);
    return at == 0 ? !(b < a) : at == 1 ? !(a < b) : a < b;
}
template <class A, class B>
constexpr bool LessEqual(uint32_t first, const A& a, const B& b)
{
    const uint32_t at = At(first);
    return at == 0 ? !(b <= a) : at == 1 ? !(a <= b) : a <= b;
}
template <class A, class B>
constexpr bool Greater(uint32_t first, const A& a, const B& b)
{
    const uint32_t at = At(first);
    return at == 0 ? !(b > a) : at == 1 ? !(a > b) : a > b;
}
template <class A, class B>
constexpr bool GreaterEqual(uint32_t first, const A& a, const B& b)
{
    const uint32_t at = At(first);
    return at == 0 ? !(b >= a) : at == 1 ? !(a >= b) : a >= b;
}
template <class A, class B>
constexpr bool Equal(uint32_t first, const A& a, const B& b)
{
    const bool equal = a == b;
    return At(first) == 0 ? !equal : equal;
}
template <class A, class B>
constexpr bool NotEqual(uint32_t first, const A& a, const B& b)
{
    const bool different = a != b;
    return At(first) == 0 ? !different : different;
}

// ---- conditions

template <class T>
constexpr bool TrueOrFalse(uint32_t first, const T& value)
{
    const uint32_t at = At(first);
    return at == 0 ? true : at == 1 ? false : static_cast<bool>(value);
}
template <class T>
constexpr bool True(uint32_t first, const T& value)
{
    return At(first) == 0 ? true : static_cast<bool>(value);
}
template <class T>
constexpr bool False(uint32_t first, const T& value)
{
    return At(first) == 0 ? false : static_cast<bool>(value);
}
constexpr bool Not(uint32_t first, bool value)
{
    return At(first) == 0 ? !value : value;
}
template <class T>
constexpr T Nothing(uint32_t first, T value)
{
    return At(first) == 0 ? T{} : value;
}
constexpr bool Keep(uint32_t first)
{
    return At(first) != 0;
}

// A value that no case has, in the place of the one whose case is dropped.
template <class T>
constexpr T Unlisted(uint32_t first, T value, std::initializer_list<std::common_type_t<T>> cases)
{
    const uint32_t at = At(first);
    return at < cases.size() && cases.begin()[at] == value ? static_cast<T>(113) : value;
}

// ---- constants

template <class T>
constexpr T UpDown(uint32_t first, T value)
{
    const uint32_t at = At(first);
    return at == 0 ? static_cast<T>(value + 1) : at == 1 ? static_cast<T>(value - 1) : value;
}
template <class T>
constexpr T UpDownZero(uint32_t first, T value)
{
    const uint32_t at = At(first);
    return at == 0 ? static_cast<T>(value + 1) : at == 1 ? static_cast<T>(value - 1) : at == 2 ? T{} : value;
}
template <class T>
constexpr T Up(uint32_t first, T value)
{
    return At(first) == 0 ? static_cast<T>(value + 1) : value;
}
template <class T>
constexpr T Half(uint32_t first, T value)
{
    return At(first) == 0 ? static_cast<T>(value / 2) : value;
}
template <class T>
constexpr T Pick(uint32_t first, T value, T other)
{
    return At(first) == 0 ? other : value;
}
constexpr const char* Emptied(uint32_t first, const char* text)
{
    return At(first) == 0 ? "" : text;
}

// A named constant or a table: the whole of it, with one change in each variant.
template <class T, size_t count>
constexpr const T& Variant(uint32_t first, const T& original, const T (&variants)[count])
{
    const uint32_t at = At(first);
    return at < count ? variants[at] : original;
}

// ---- arithmetic

#define ZM_ARITHMETIC(name, op, other)                                          \
    template <class A, class B>                                                 \
    constexpr auto name(uint32_t first, const A& a, const B& b)->decltype(a op b) \
    {                                                                           \
        return At(first) == 0 ? static_cast<decltype(a op b)>(a other b) : a op b; \
    }
ZM_ARITHMETIC(Plus, +, -)
ZM_ARITHMETIC(Minus, -, +)
ZM_ARITHMETIC(Times, *, +)
ZM_ARITHMETIC(Divide, /, *)
ZM_ARITHMETIC(Modulo, %, *)
ZM_ARITHMETIC(And, &, |)
ZM_ARITHMETIC(Or, |, &)
ZM_ARITHMETIC(ShiftLeft, <<, >>)
ZM_ARITHMETIC(ShiftRight, >>, <<)
#undef ZM_ARITHMETIC

template <class T>
constexpr auto Opposite(uint32_t first, const T& value)
{
    return At(first) == 0 ? static_cast<decltype(+value)>(-value) : +value;
}

// In the place of the standard's functions of the same names.
template <uint32_t first>
struct Other {
    template <class T>
    static constexpr const T& min(const T& a, const T& b)
    {
        return At(first) == 0 ? std::max(a, b) : std::min(a, b);
    }
    template <class T>
    static constexpr const T& max(const T& a, const T& b)
    {
        return At(first) == 0 ? std::min(a, b) : std::max(a, b);
    }
    template <class T>
    static constexpr const T& clamp(const T& value, const T& low, const T& high)
    {
        uint32_t at = At(first);  // a constant would be the compiler's to evaluate
        return at == 0 ? std::max(value, low) : at == 1 ? std::min(value, high) : std::clamp(value, low, high);
    }
};

template <class T>
using Bare = std::remove_cv_t<T>;

}  // namespace mutate
