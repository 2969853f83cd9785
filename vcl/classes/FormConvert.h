// Converting forms between text and binary.
//
// Text to binary and back gives the same bytes for every text that is laid out and spelled as the designers do it, and
// what comes from a binary form always leads back to an equal form. Of the text, the binary form does not keep how it
// was laid out: line ends, indentation, where long strings were broken, the case of words of the language, hexadecimal
// spelling, character codes for characters that can stand in quotes, or a UTF-8 signature that no name needs.
#pragma once

#include "vcl/classes/FormFormat.h"
#include "vcl/classes/FormPrinter.h"

#include <cstddef>
#include <string>
#include <string_view>

class TFormLinesBuilder;
class TStream;

// Append the converted form to Output and return how much of the input belongs to it: for text with the blanks and line
// ends behind it, for binary with a resource header before it. Further input is not looked at. When they throw
// EFormTextError or EFormDataError, Output is as it was.
// Lines, when it is there, gets the places in the text.
std::size_t FormTextToBinary(std::string_view Text, std::string& Output, TFormLinesBuilder* Lines = nullptr);
std::size_t FormBinaryToText(std::string_view Binary, std::string& Output, const TFormTextOptions& Options = {});

// What the stream holds from where it stands; its position stays.
TStreamOriginalFormat TestStreamFormat(TStream& Stream);

// Convert the form at which Input stands, leave Input behind it, and write to where Output stands. When they throw,
// nothing has been written, and Input stands where it stood. Errors count from there. A binary form may have a resource
// header in ObjectBinaryToText too; ObjectResourceToText demands one.
void ObjectTextToBinary(TStream& Input, TStream& Output);
void ObjectTextToResource(TStream& Input, TStream& Output);
void ObjectBinaryToText(TStream& Input, TStream& Output);
void ObjectResourceToText(TStream& Input, TStream& Output);
