// TStrings: a list of texts with an object each. The base of string lists, of the lines of a memo, the items of a list
// box and so on. Objects are never owned unless a descendant says so.
#pragma once

#include "vcl/classes/Persistent.h"

#include <string_view>

class TReader;
class TStream;
class TWriter;

class TStrings : public TPersistent {
    VCL_CLASS(TStrings, TPersistent)
public:
    // Indexes out of range raise EStringListError "List index out of bounds (%d)".
    virtual int GetCount() const = 0;
    PROPERTY_READ(int, Count);
    virtual AnsiString GetStrings(int Index) const = 0;
    // Unless overridden: the text is deleted and inserted anew, with its object.
    virtual void SetStrings(int Index, const AnsiString& Value);
    PROPERTY_INDEXED(AnsiString, Strings);
    AnsiString operator[](int Index) const { return GetStrings(Index); }
    // Unless overridden there are no objects: nullptr, and setting does nothing.
    virtual TObject* GetObjects(int Index) const;
    virtual void SetObjects(int Index, TObject* Value);
    PROPERTY_INDEXED(TObject*, Objects);

    virtual int GetCapacity() const { return GetCount(); }
    virtual void SetCapacity(int) {}
    PROPERTY(int, Capacity);

    // Return the index of the new text.
    virtual int Add(const AnsiString& S);
    virtual int AddObject(const AnsiString& S, TObject* Object);
    void Append(const AnsiString& S) { Add(S); }
    // All of Source's texts with their objects.
    virtual void AddStrings(const TStrings* Source);
    // Index may be Count: at the end.
    virtual void Insert(int Index, const AnsiString& S) = 0;
    virtual void InsertObject(int Index, const AnsiString& S, TObject* Object);
    virtual void Delete(int Index) = 0;
    virtual void Clear() = 0;
    virtual void Exchange(int Index1, int Index2);
    virtual void Move(int CurIndex, int NewIndex);

    // -1 when there is none. Texts compare as CompareStrings says.
    virtual int IndexOf(const AnsiString& S) const;
    // The first text "Name=..."; -1 when there is none.
    virtual int IndexOfName(std::string_view Name) const;
    int IndexOfObject(const TObject* Object) const;
    // True when both have the same texts in the same order; objects do not count.
    bool Equals(const TStrings* Other) const;

    // What stands before the separator; empty when the text has none.
    AnsiString GetNames(int Index) const;
    PROPERTY_INDEXED_READ(AnsiString, Names);
    // What stands behind the separator of the text of that name; empty when there is none. Setting an empty value
    // deletes the text, setting another one replaces or adds it.
    AnsiString GetValues(std::string_view Name) const;
    void SetValues(std::string_view Name, const AnsiString& Value);
    PROPERTY_INDEXED(AnsiString, Values);
    AnsiString GetValueFromIndex(int Index) const;
    void SetValueFromIndex(int Index, const AnsiString& Value);
    PROPERTY_INDEXED(AnsiString, ValueFromIndex);
    char NameValueSeparator = '=';

    // All texts, each followed by LineBreak. Setting splits at CR, LF and CR LF.
    virtual AnsiString GetText() const;
    virtual void SetText(const AnsiString& Value);
    PROPERTY(AnsiString, Text);
    AnsiString LineBreak = "\r\n";

    // One line, texts separated by commas, quoted where they hold blanks, commas or quotes. Setting also splits at
    // unquoted blanks.
    AnsiString GetCommaText() const;
    void SetCommaText(const AnsiString& Value);
    PROPERTY(AnsiString, CommaText);
    // The same with Delimiter and QuoteChar; with StrictDelimiter blanks do not split.
    AnsiString GetDelimitedText() const;
    void SetDelimitedText(const AnsiString& Value);
    PROPERTY(AnsiString, DelimitedText);
    char Delimiter = ',';
    char QuoteChar = '"';
    bool StrictDelimiter = false;

    // Between the two, which nest, nobody is told of changes or repaints.
    void BeginUpdate();
    void EndUpdate();
    int GetUpdateCount() const { return FUpdateCount; }
    PROPERTY_READ(int, UpdateCount);

    // Reads UTF-8, UTF-16 with its mark, or the user's legacy code page. Raises EFOpenError when there is no such file.
    void LoadFromFile(const AnsiString& FileName);
    virtual void LoadFromStream(TStream* Stream);
    // Writes UTF-8 without a mark. Raises EFCreateError.
    void SaveToFile(const AnsiString& FileName) const;
    virtual void SaveToStream(TStream* Stream) const;

    // From another TStrings; anything else raises EConvertError.
    void Assign(TPersistent* Source) override;
    // "Strings": a list of texts, written when it differs from the ancestor's.
    void DefineProperties(TFiler& Filer) override;

protected:
    // Called with true by the first BeginUpdate and with false by the last EndUpdate.
    virtual void SetUpdateState(bool Updating);
    virtual int CompareStrings(std::string_view A, std::string_view B) const;
    // Raises EStringListError.
    void CheckIndex(int Index) const;
    void CheckInsertIndex(int Index) const;

private:
    AnsiString JoinDelimited(char Separator, char Quote, bool Strict) const;
    void SplitDelimited(std::string_view Text, char Separator, char Quote, bool Strict);
    void ReadData(TReader* Reader);
    void WriteData(TWriter* Writer);

    int FUpdateCount = 0;
};

// Holds BeginUpdate for a scope.
class TStringsUpdate {
public:
    explicit TStringsUpdate(TStrings* Strings) : FStrings(Strings) { FStrings->BeginUpdate(); }
    ~TStringsUpdate() { FStrings->EndUpdate(); }
    TStringsUpdate(const TStringsUpdate&) = delete;

private:
    TStrings* FStrings;
};
