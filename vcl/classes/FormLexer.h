// TFormLexer splits a text form into tokens. It copies nothing: a token's spelling points into the text.
#pragma once

#include "vcl/classes/FormError.h"

#include <cstdint>
#include <string>
#include <string_view>

enum class TFormToken : std::uint8_t {
    End,        // of the text
    Identifier, // also dotted: Font.Name
    Integer,    // 12, -12 or $0C
    Float,      // 1.5, 1E5, or a number with a suffix: 1.5s (single), 15000c (currency), 1.5d (date)
    Text,       // quoted text and character codes without a blank between them: 'caf'#233
    Symbol,     // any other single character of the language
};

// True when Name can stand in a text form as an identifier, dotted or not.
bool IsFormIdentifier(std::string_view Name);
// True when two words are the same but for the case of their letters; LowerWord is in lower case.
bool IsFormWord(std::string_view Word, std::string_view LowerWord);

class TFormLexer {
public:
    // Text must outlive the lexer. A UTF-8 signature at its start is skipped and remembered.
    explicit TFormLexer(std::string_view AText);

    // Reads the next token. Throws EFormTextError for a character or number that cannot be one.
    void Next();
    // After the symbol "{": appends the bytes that the digits up to "}" stand for, and reads the token after it.
    void ReadHex(std::string& Output);
    // Skips blanks without reading a token.
    void SkipBlanks();

    TFormToken Kind() const { return FKind; }
    std::string_view Spelling() const { return FSpelling; }
    bool IsSymbol(char Symbol) const { return FKind == TFormToken::Symbol && FSpelling[0] == Symbol; }
    // Compares with a word in lower case; case does not matter in a form.
    bool IsWord(std::string_view LowerWord) const
    {
        return FSpelling.size() == LowerWord.size() && FKind == TFormToken::Identifier &&
               IsFormWord(FSpelling, LowerWord);
    }

    // Of a Float: 's', 'c', 'd' or 0; the spelling is without it.
    char Suffix() const { return FSuffix; }
    // Of a Text: a single quoted part that stands for itself.
    bool IsPlainText() const { return FPlainText; }
    // Of a Text: some byte is not ASCII.
    bool HasHighBytes() const { return FHighBytes; }

    bool HasUtf8Signature() const { return FUtf8Signature; }
    int Line() const { return FLine; }
    // How much of the text is behind the current token.
    std::size_t Position() const { return static_cast<std::size_t>(FAt - FStart); }

    // Throws EFormTextError for the current line.
    [[noreturn]] void Fail(const std::string& Detail) const { throw EFormTextError(Detail, FLine); }
    // "X expected but Y found".
    [[noreturn]] void FailExpected(const std::string& What) const;

private:
    void ScanIdentifier();
    void ScanNumber();
    void ScanExponent();
    void ScanHexNumber();
    void ScanText();
    void ScanQuoted();
    void Finish(TFormToken Kind, const char* TokenStart);

    const char* FStart;
    const char* FAt;
    const char* FEnd;
    int FLine = 1;
    std::string_view FSpelling;
    TFormToken FKind = TFormToken::End;
    char FSuffix = 0;
    bool FPlainText = false;
    bool FHighBytes = false;
    bool FUtf8Signature = false;
};
