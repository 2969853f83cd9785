// Components as form text, in tests of what is streamed, in which order and with which defaults.
#pragma once

#include <string>
#include <string_view>
#include <vector>

class TComponent;
class TMetaClass;

// What a form file says about Component and everything in it.
std::string FormText(TComponent* Component);
// Reads a form text into Component.
void ReadFormText(TComponent* Component, std::string_view Text);

// The class's published properties from the one named First on: "Name", with " = " and the default where it has one:
// "Cols = 1", "Align = alNone", "BevelSides = [sdLeft,sdTop]".
std::vector<std::string> PublishedFrom(const TMetaClass* Class, std::string_view First);
