// The group of a button that is to be alone in it.
#pragma once

// A random GroupIndex from 1 to Last. Not 0, which is no group: a button that can stay down has one.
int RandomGroup(int Last);
