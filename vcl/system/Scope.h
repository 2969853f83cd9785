// What holds during a block and is put right at its end, however the block ends.
#pragma once

#include <type_traits>
#include <utility>

// A variable has one value during a block and another after it: the one it had before, or one that is given.
template <class T>
class TScopedValue {
public:
    TScopedValue(T& Variable, std::type_identity_t<T> During)
        : FVariable(Variable),
          FAfter(std::exchange(Variable, std::move(During)))
    {}
    TScopedValue(T& Variable, std::type_identity_t<T> During, std::type_identity_t<T> After)
        : FVariable(Variable),
          FAfter(std::move(After))
    {
        FVariable = std::move(During);
    }
    ~TScopedValue() { FVariable = std::move(FAfter); }
    TScopedValue(const TScopedValue&) = delete;

private:
    T& FVariable;
    T FAfter;
};

// Calls a function at the end of the block, unless it was dismissed. The function must not throw.
//
//     TScopeExit Undo([&] { List.Remove(Item); });
//     Register(Item);
//     Undo.Dismiss();
template <class Function>
class TScopeExit {
public:
    explicit TScopeExit(Function AtEnd) : FAtEnd(std::move(AtEnd)) {}
    ~TScopeExit()
    {
        if (!FDismissed)
            FAtEnd();
    }
    TScopeExit(const TScopeExit&) = delete;

    void Dismiss() { FDismissed = true; }

private:
    Function FAtEnd;
    bool FDismissed = false;
};
