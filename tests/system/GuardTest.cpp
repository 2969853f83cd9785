#include "vcl/system/Guard.h"

#include "tests/support/Reports.h"
#include "vcl/system/Exceptions.h"
#include "vcl/system/Scope.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(GuardTest, WhatDoesNotThrowReportsNothing)
{
    const TReports Reports;
    EXPECT_TRUE(Guarded(nullptr, [] {}));
    EXPECT_THAT(Reports.Texts(), IsEmpty());
}

TEST(GuardTest, ExceptionsOfEveryKindEndAtTheGuard)
{
    const TReports Reports;
    TObject Sender;
    EXPECT_FALSE(Guarded(&Sender, [] { throw EInvalidOperation("ours"); }));
    EXPECT_FALSE(Guarded(nullptr, [] { throw std::runtime_error("the library's"); }));
    EXPECT_FALSE(Guarded(nullptr, [] { throw 1; }));
    EXPECT_THAT(Reports.Texts(), ElementsAre("TObject: ours", "the library's", "unknown"));
}

TEST(ScopeTest, AValueHoldsDuringTheBlock)
{
    int Value = 1;
    {
        const TScopedValue During(Value, 2);
        EXPECT_EQ(Value, 2);
    }
    EXPECT_EQ(Value, 1);
    try {
        const TScopedValue During(Value, 2, 3);
        EXPECT_EQ(Value, 2);
        throw 1;
    } catch (int) {
    }
    EXPECT_EQ(Value, 3);
}

TEST(ScopeTest, TheEndOfABlockRunsUnlessItIsDismissed)
{
    int Ends = 0;
    {
        const TScopeExit Count([&] { ++Ends; });
    }
    EXPECT_EQ(Ends, 1);
    {
        TScopeExit Count([&] { ++Ends; });
        Count.Dismiss();
    }
    EXPECT_EQ(Ends, 1);
}
