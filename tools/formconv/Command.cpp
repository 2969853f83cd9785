#include "tools/formconv/Command.h"

#include "tools/formconv/Conversion.h"
#include "tools/formconv/FormFiles.h"

#include <exception>
#include <ostream>

namespace {

constexpr const char* Usage =
    "usage: formconv --binary [--lines LINES] IN OUT\n"
    "       formconv --resource IN OUT\n"
    "       formconv --text [--lf] IN OUT\n"
    "\n"
    "Converts a form to binary, to binary with a resource header, or to text, whichever of these it is.\n"
    "LINES gets a small map from the form to the lines of the text that it comes from, for messages of errors.\n"
    "IN and OUT may be -, standard input and output. Lines of text end with CR LF, or with --lf with LF alone.\n";

struct TOptions {
    TFormTarget Target = TFormTarget::Text;
    std::string LineEnd = "\r\n";
    std::string Lines; // empty: not wanted
    std::string Input;
    std::string Output;
};

bool ReadOptions(std::vector<std::string> Words, TOptions& Options)
{
    if (Words.empty())
        return false;
    if (Words[0] == "--binary")
        Options.Target = TFormTarget::Binary;
    else if (Words[0] == "--resource")
        Options.Target = TFormTarget::Resource;
    else if (Words[0] != "--text")
        return false;
    Words.erase(Words.begin());
    if (Options.Target == TFormTarget::Text && !Words.empty() && Words[0] == "--lf") {
        Options.LineEnd = "\n";
        Words.erase(Words.begin());
    }
    if (Options.Target == TFormTarget::Binary && Words.size() > 2 && Words[0] == "--lines") {
        Options.Lines = Words[1];
        Words.erase(Words.begin(), Words.begin() + 2);
    }
    if (Words.size() != 2)
        return false;
    Options.Input = Words[0];
    Options.Output = Words[1];
    return true;
}

} // namespace

int RunFormconv(const std::vector<std::string>& Words, std::ostream& Errors)
{
    TOptions Options;
    if (!ReadOptions(Words, Options)) {
        Errors << Usage;
        return 1;
    }
    try {
        const std::string Name = Options.Input == "-" ? "<stdin>" : Options.Input;
        const TConversionResult Result =
            ConvertForm(ReadWholeFile(Options.Input), Name, Options.Target, Options.LineEnd);
        if (Result.Done) {
            WriteWholeFile(Options.Output, Result.Output);
            if (!Options.Lines.empty())
                WriteWholeFile(Options.Lines, Result.Lines);
            return 0;
        }
        Errors << Result.Error << "\n";
    } catch (const std::exception& Error) {
        Errors << Error.what() << "\n";
    }
    return 1;
}
