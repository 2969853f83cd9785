// TScopedValue: a variable has one value during a block and another after it, however the block ends.
#pragma once

template <class T>
class TScopedValue {
public:
    TScopedValue(T& Variable, T During, T After) : FVariable(Variable), FAfter(After) { FVariable = During; }
    ~TScopedValue() { FVariable = FAfter; }
    TScopedValue(const TScopedValue&) = delete;

private:
    T& FVariable;
    T FAfter;
};
