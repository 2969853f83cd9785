// See First.cpp.
int DefinedTwice()
{
    return 2;
}

inline int DefinedInline()
{
    return 0;
}

static int OfThisFile()
{
    return 0;
}

int SecondUse()
{
    return DefinedInline() + OfThisFile();
}
