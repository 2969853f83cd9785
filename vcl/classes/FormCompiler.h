// TFormCompiler turns a text form into a binary one, in one pass over the text.
//
//   object    ("object" | "inherited" | "inline") [Name ":"] ClassName ["[" child position "]"] property* object* "end"
//   property  Name "=" value
//   value     number | string ("+" string)* | identifier | "True" | "False" | "nil" | "Null" | set | list | collection
//             | binary
//   set       "[" [Name ("," Name)*] "]"
//   list      "(" value* ")"
//   collection  "<" ("item" ["[" index "]"] property* "end")* ">"
//   binary    "{" hexadecimal digits "}"
//
// Case does not matter in words of the language, and blanks and line ends matter only between two words or numbers.
#pragma once

#include "vcl/classes/FormCursor.h"
#include "vcl/classes/FormEncoder.h"
#include "vcl/classes/FormLexer.h"
#include "vcl/classes/FormString.h"

#include <string>
#include <string_view>

class TFormLinesBuilder;

class TFormCompiler {
public:
    // All must outlive the compiler. Lines gets where in the text everything stands; nullptr: not wanted.
    TFormCompiler(std::string_view Text, std::string& Output, TFormLinesBuilder* Lines = nullptr);

    // Appends the first form in the text to the output. Returns how much of the text belongs to it, the blanks and
    // line ends behind it included. Throws EFormTextError; the output may then have got a part of the form.
    std::size_t Run();

private:
    class TLevel;

    void Object();
    TFormPrefix ObjectKeyword() const;
    bool AtObject() const;
    void Properties();
    void Property();
    void Value();
    void IdentifierValue();
    void IntegerValue();
    void FloatValue();
    void StringValue();
    void Set();
    void NumberedElement();
    void List();
    void Collection();
    void Binary();

    std::string_view TakeName(const char* What);
    std::int32_t TakeIndex();
    std::int64_t ParseInteger() const;
    void TakeSymbol(char Symbol);
    // What is written next stands on the current line.
    void NoteLine();

    TFormLexer FLexer;
    TFormEncoder FEncoder;
    std::string& FOutput;
    TFormString FString;
    TFormLinesBuilder* FLines;
    std::size_t FStart; // of the form in the output
    int FDepth = 0;
};
