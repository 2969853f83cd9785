#include "menus/TBColorCombo.h"

#include "tests/toolbar/TBButtonTests.h"

INSTANTIATE_TYPED_TEST_SUITE_P(TBColorComboTest, TBButtonTests, TkelTBColorCombo);
