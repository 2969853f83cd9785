#include "vcl/classes/Strings.h"

#include "vcl/classes/FileStream.h"
#include "vcl/classes/ListIndex.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/Writer.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Locale.h"
#include "vcl/system/SysUtils.h"
#include "vcl/system/Utf.h"

namespace {

// UTF-8 from the bytes of a text file.
AnsiString DecodeFile(std::string_view Bytes)
{
    if (Bytes.starts_with("\xEF\xBB\xBF"))
        Bytes.remove_prefix(3);
    bool Little = Bytes.starts_with("\xFF\xFE");
    if (Little || Bytes.starts_with("\xFE\xFF")) {
        Bytes.remove_prefix(2);
        TWideString Units(Bytes.size() / 2, 0);
        for (size_t I = 0; I < Units.size(); ++I) {
            auto First = static_cast<unsigned char>(Bytes[2 * I]);
            auto Second = static_cast<unsigned char>(Bytes[2 * I + 1]);
            Units[I] = static_cast<TWideChar>(Little ? First | Second << 8 : First << 8 | Second);
        }
        return FromWide(Units);
    }
    return IsValidUtf8(Bytes) ? AnsiString(Bytes) : DecodeCodePage(Bytes, LegacyCodePage());
}

} // namespace

void TStrings::Describe(TClassBuilder<TStrings>&)
{}

void TStrings::CheckIndex(int Index) const
{
    CheckListIndex<EStringListError>(Index, GetCount());
}

void TStrings::CheckInsertIndex(int Index) const
{
    if (Index != GetCount())
        CheckIndex(Index);
}

void TStrings::SetStrings(int Index, const AnsiString& Value)
{
    // Value may be a part of what is deleted.
    AnsiString Text = Value; // NOLINT(performance-unnecessary-copy-initialization)
    TObject* Object = GetObjects(Index);
    Delete(Index);
    InsertObject(Index, Text, Object);
}

TObject* TStrings::GetObjects(int) const
{
    return nullptr;
}

void TStrings::SetObjects(int, TObject*)
{}

int TStrings::Add(const AnsiString& S)
{
    int Index = GetCount();
    Insert(Index, S);
    return Index;
}

int TStrings::AddObject(const AnsiString& S, TObject* Object)
{
    int Index = Add(S);
    SetObjects(Index, Object);
    return Index;
}

void TStrings::AddStrings(const TStrings* Source)
{
    TStringsUpdate Update(this);
    int SourceCount = Source->GetCount(); // Source may be this list
    for (int I = 0; I < SourceCount; ++I)
        AddObject(Source->GetStrings(I), Source->GetObjects(I));
}

void TStrings::InsertObject(int Index, const AnsiString& S, TObject* Object)
{
    Insert(Index, S);
    SetObjects(Index, Object);
}

void TStrings::Exchange(int Index1, int Index2)
{
    CheckIndex(Index1);
    CheckIndex(Index2);
    TStringsUpdate Update(this);
    AnsiString Text = GetStrings(Index1);
    TObject* Object = GetObjects(Index1);
    SetStrings(Index1, GetStrings(Index2));
    SetObjects(Index1, GetObjects(Index2));
    SetStrings(Index2, Text);
    SetObjects(Index2, Object);
}

void TStrings::Move(int CurIndex, int NewIndex)
{
    CheckIndex(CurIndex);
    CheckIndex(NewIndex);
    if (CurIndex == NewIndex)
        return;
    TStringsUpdate Update(this);
    AnsiString Text = GetStrings(CurIndex);
    TObject* Object = GetObjects(CurIndex);
    SetObjects(CurIndex, nullptr);
    Delete(CurIndex);
    InsertObject(NewIndex, Text, Object);
}

int TStrings::IndexOf(const AnsiString& S) const
{
    for (int I = 0; I < GetCount(); ++I)
        if (CompareStrings(GetStrings(I), S) == 0)
            return I;
    return -1;
}

int TStrings::IndexOfName(std::string_view Name) const
{
    for (int I = 0; I < GetCount(); ++I) {
        AnsiString Text = GetStrings(I);
        size_t Separator = Text.find(NameValueSeparator);
        if (Separator != Text.npos && CompareStrings(std::string_view(Text).substr(0, Separator), Name) == 0)
            return I;
    }
    return -1;
}

int TStrings::IndexOfObject(const TObject* Object) const
{
    for (int I = 0; I < GetCount(); ++I)
        if (GetObjects(I) == Object)
            return I;
    return -1;
}

bool TStrings::Equals(const TStrings* Other) const
{
    if (GetCount() != Other->GetCount())
        return false;
    for (int I = 0; I < GetCount(); ++I)
        if (GetStrings(I) != Other->GetStrings(I))
            return false;
    return true;
}

// ---- Names and values

AnsiString TStrings::GetNames(int Index) const
{
    AnsiString Text = GetStrings(Index);
    size_t Separator = Text.find(NameValueSeparator);
    return Separator == Text.npos ? AnsiString() : Text.substr(0, Separator);
}

AnsiString TStrings::GetValues(std::string_view Name) const
{
    int Index = IndexOfName(Name);
    return Index < 0 ? AnsiString() : GetValueFromIndex(Index);
}

void TStrings::SetValues(std::string_view Name, const AnsiString& Value)
{
    int Index = IndexOfName(Name);
    AnsiString Text = AnsiString(Name) + NameValueSeparator + Value;
    if (Index < 0 && !Value.empty())
        Add(Text);
    else if (Index >= 0 && !Value.empty())
        SetStrings(Index, Text);
    else if (Index >= 0)
        Delete(Index);
}

AnsiString TStrings::GetValueFromIndex(int Index) const
{
    AnsiString Text = GetStrings(Index);
    size_t Separator = Text.find(NameValueSeparator);
    return Separator == Text.npos ? AnsiString() : Text.substr(Separator + 1);
}

void TStrings::SetValueFromIndex(int Index, const AnsiString& Value)
{
    if (Value.empty())
        Delete(Index);
    else
        SetStrings(Index, GetNames(Index) + NameValueSeparator + Value);
}

// ---- As one text

AnsiString TStrings::GetText() const
{
    AnsiString Text;
    for (int I = 0; I < GetCount(); ++I)
        Text.append(GetStrings(I)).append(LineBreak);
    return Text;
}

void TStrings::SetText(const AnsiString& Value)
{
    TStringsUpdate Update(this);
    std::string_view Rest = Value;
    Clear();
    while (!Rest.empty()) {
        size_t End = std::min(Rest.find_first_of("\r\n"), Rest.size());
        Add(AnsiString(Rest.substr(0, End)));
        Rest.remove_prefix(End);
        if (!Rest.empty())
            Rest.remove_prefix(Rest.starts_with("\r\n") ? 2 : 1);
    }
}

AnsiString TStrings::GetCommaText() const
{
    return JoinDelimited(',', '"', false);
}

void TStrings::SetCommaText(const AnsiString& Value)
{
    SplitDelimited(Value, ',', '"', false);
}

AnsiString TStrings::GetDelimitedText() const
{
    return JoinDelimited(Delimiter, QuoteChar, StrictDelimiter);
}

void TStrings::SetDelimitedText(const AnsiString& Value)
{
    SplitDelimited(Value, Delimiter, QuoteChar, StrictDelimiter);
}

AnsiString TStrings::JoinDelimited(char Separator, char Quote, bool Strict) const
{
    // A single empty text is not the same as no text.
    if (GetCount() == 1 && GetStrings(0).empty())
        return AnsiString(2, Quote);
    auto NeedsQuotes = [&](const AnsiString& Text) {
        for (char C : Text)
            if (C == Separator || C == Quote || (!Strict && static_cast<unsigned char>(C) <= ' '))
                return true;
        return false;
    };
    AnsiString Result;
    for (int I = 0; I < GetCount(); ++I) {
        AnsiString Text = GetStrings(I);
        if (I > 0)
            Result += Separator;
        Result += NeedsQuotes(Text) ? AnsiQuotedStr(Text, Quote) : Text;
    }
    return Result;
}

void TStrings::SplitDelimited(std::string_view Text, char Separator, char Quote, bool Strict)
{
    auto SkipBlanks = [&] {
        while (!Strict && !Text.empty() && static_cast<unsigned char>(Text[0]) <= ' ' && Text[0] != Separator)
            Text.remove_prefix(1);
    };
    AnsiString Copy(Text); // may be one of the texts that are cleared now
    Text = Copy;
    TStringsUpdate Update(this);
    Clear();
    SkipBlanks();
    bool More = !Text.empty();
    while (More) {
        if (!Text.empty() && Text[0] == Quote) {
            Add(AnsiExtractQuotedStr(Text, Quote));
        } else {
            size_t End = 0;
            while (End < Text.size() && Text[End] != Separator &&
                   (Strict || static_cast<unsigned char>(Text[End]) > ' '))
                ++End;
            Add(AnsiString(Text.substr(0, End)));
            Text.remove_prefix(End);
        }
        SkipBlanks();
        More = !Text.empty();
        if (More && Text[0] == Separator) {
            Text.remove_prefix(1);
            SkipBlanks();
        }
    }
}

// ---- Updating

void TStrings::BeginUpdate()
{
    if (FUpdateCount++ == 0)
        SetUpdateState(true);
}

void TStrings::EndUpdate()
{
    if (--FUpdateCount == 0)
        SetUpdateState(false);
}

void TStrings::SetUpdateState(bool)
{}

int TStrings::CompareStrings(std::string_view A, std::string_view B) const
{
    return AnsiCompareText(A, B);
}

// ---- Files, assigning, streaming

void TStrings::LoadFromFile(const AnsiString& FileName)
{
    TFileStream Stream(FileName, fmOpenRead | fmShareDenyWrite);
    LoadFromStream(&Stream);
}

void TStrings::LoadFromStream(TStream* Stream)
{
    AnsiString Bytes(static_cast<size_t>(std::max<int64_t>(Stream->Size - Stream->Position, 0)), 0);
    Stream->ReadBuffer(Bytes.data(), static_cast<int64_t>(Bytes.size()));
    SetText(DecodeFile(Bytes));
}

void TStrings::SaveToFile(const AnsiString& FileName) const
{
    TFileStream Stream(FileName, fmCreate);
    SaveToStream(&Stream);
}

void TStrings::SaveToStream(TStream* Stream) const
{
    AnsiString Bytes = GetText();
    Stream->WriteBuffer(Bytes.data(), static_cast<int64_t>(Bytes.size()));
}

void TStrings::Assign(TPersistent* Source)
{
    auto* Strings = As<TStrings>(Source);
    if (!Strings) {
        TPersistent::Assign(Source);
        return;
    }
    if (Strings == this)
        return;
    TStringsUpdate Update(this);
    Clear();
    NameValueSeparator = Strings->NameValueSeparator;
    Delimiter = Strings->Delimiter;
    QuoteChar = Strings->QuoteChar;
    StrictDelimiter = Strings->StrictDelimiter;
    LineBreak = Strings->LineBreak;
    AddStrings(Strings);
}

void TStrings::DefineProperties(TFiler& Filer)
{
    auto* Inherited = As<TStrings>(Filer.Ancestor);
    bool HasData = Inherited ? !Equals(Inherited) : GetCount() > 0;
    Filer.DefineProperty("Strings", {this, &TStrings::ReadData}, {this, &TStrings::WriteData}, HasData);
}

void TStrings::ReadData(TReader* Reader)
{
    Reader->ReadListBegin();
    TStringsUpdate Update(this);
    Clear();
    while (!Reader->EndOfList())
        Add(Reader->ReadString());
    Reader->ReadListEnd();
}

void TStrings::WriteData(TWriter* Writer)
{
    Writer->WriteListBegin();
    for (int I = 0; I < GetCount(); ++I)
        Writer->WriteString(GetStrings(I));
    Writer->WriteListEnd();
}
