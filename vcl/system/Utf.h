// UTF-8 outside, UTF-16 at the system's edge. Ill-formed input becomes U+FFFD, never an error.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#if defined(_WIN32)
using TWideChar = wchar_t;
#else
using TWideChar = char16_t;
#endif
using TWideView = std::basic_string_view<TWideChar>;
using TWideString = std::basic_string<TWideChar>;

bool IsValidUtf8(std::string_view Text);

// Writes the UTF-16 form to Out, which has room for Text.size() units, and returns the number written.
size_t Utf8ToWide(std::string_view Text, TWideChar* Out);
// Writes the UTF-8 form to Out, which has room for 3 * Text.size() bytes, and returns the number written.
size_t WideToUtf8(TWideView Text, char* Out);

TWideString ToWide(std::string_view Text);
std::string FromWide(TWideView Text);

// A text for one call into the system: zero-terminated UTF-16, on the stack when it is short.
class TWideText {
public:
    explicit TWideText(std::string_view Text);
    TWideText(const TWideText&) = delete;

    const TWideChar* c_str() const { return FText; }
    TWideChar* data() { return FText; }
    size_t size() const { return FSize; }

private:
    static constexpr size_t ShortSize = 255;

    TWideChar* FText;
    size_t FSize;
    std::unique_ptr<TWideChar[]> FLong;
    TWideChar FShort[ShortSize + 1];
};
