// The one place that knows how the compiler spells a property: a member that reads through GetName and writes through
// SetName. Clang (with -fdeclspec), clang-cl and MSVC have it; GCC has not.
#pragma once

#define PROPERTY(Type, Name) __declspec(property(get = Get##Name, put = Set##Name)) Type Name
#define PROPERTY_READ(Type, Name) __declspec(property(get = Get##Name)) Type Name

// `List->Checked[2]` reads GetChecked(2); `Canvas->Pixels[X][Y]` reads GetPixels(X, Y).
#define PROPERTY_INDEXED(Type, Name) __declspec(property(get = Get##Name, put = Set##Name)) Type Name[]
#define PROPERTY_INDEXED_READ(Type, Name) __declspec(property(get = Get##Name)) Type Name[]
