// What lint.symbols.finds finds in both files, and what it does not count.
int DefinedTwice()
{
    return 1;
}

inline int DefinedInline()
{
    return 0;
}

static int OfThisFile()
{
    return 0;
}

int FirstUse()
{
    return DefinedInline() + OfThisFile();
}
