// Components that stand for real ones in the tests: one property of every kind, children, a form with fields and
// handlers.
#pragma once

#include "vcl/classes/Collection.h"
#include "vcl/classes/Component.h"
#include "vcl/classes/StringList.h"

#include <string>
#include <vector>

class TReader;
class TStream;
class TWriter;

VCL_ENUM(TSampleSide, ssdLeft, ssdTop, ssdRight);
using TSampleSides = Set<TSampleSide>;
enum TSampleColor : int32_t {};
extern const TIdentMap SampleColorIdents; // scRed = $FF, scDefault = -1
INTEGER_IDENTS(TSampleColor, SampleColorIdents)
using TSampleCountEvent = TEvent<void(TObject* Sender, int Count)>;

class TSampleFont : public TPersistent {
    VCL_CLASS(TSampleFont, TPersistent)
public:
    void Assign(TPersistent* Source) override;

    int Size = 8;
    AnsiString Face;
    TSampleSides Styles;
};

class TSampleItem : public TCollectionItem {
    VCL_CLASS(TSampleItem, TCollectionItem)
public:
    using TCollectionItem::TCollectionItem;
    void Assign(TPersistent* Source) override;

    AnsiString Text;
    int Width = 50;
    TSampleFont* GetFont() { return &FFont; }
    void SetFont(TSampleFont* Value) { FFont.Assign(Value); }
    TComponent* Target = nullptr;

private:
    TSampleFont FFont;
};

class TSamplePart : public TComponent {
    VCL_CLASS(TSamplePart, TComponent)
public:
    explicit TSamplePart(TComponent* AOwner);
    int Depth = 0;
};

// What happened, in order, for all samples: "Loaded Button1".
extern std::vector<std::string> SampleLog;

class TSample : public TComponent {
    VCL_CLASS(TSample, TComponent)
public:
    explicit TSample(TComponent* AOwner);
    ~TSample() override;

    uint8_t Small = 0;
    int GetNumber() const { return FNumber; }
    void SetNumber(int Value); // raises EInvalidOperation for -13
    int64_t Big = 0;
    uint32_t Unsigned = 0;
    char Mark = '*';
    bool Flag = true;
    TSampleSide Side = ssdTop;
    TSampleSides Sides{ssdLeft};
    TSampleColor Color = TSampleColor(-1);
    double Ratio = 0;
    AnsiString Text;
    AnsiString Hidden; // never stored
    int Version = 7;   // read-only for forms
    TSampleFont* GetFont() { return &FFont; }
    void SetFont(TSampleFont* Value) { FFont.Assign(Value); }
    TSampleFont* NoFont = nullptr;
    TStrings* GetLines() { return &FLines; }
    void SetLines(TStrings* Value) { FLines.Assign(Value); }
    TCollection* GetItems() { return &FItems; }
    void SetItems(TCollection* Value) { FItems.Assign(Value); }
    bool ItemsStored() const { return FItems.Count > 0; }
    TSamplePart* GetPart() { return &FPart; }
    TSample* GetBuddy() const { return FBuddy; }
    void SetBuddy(TSample* Value);
    TNotifyEvent OnPing;
    TSampleCountEvent OnCount;
    int Secret = 0;
    AnsiString Data;
    bool SawReading = false; // csReading and csLoading were set when Number was
    int LoadedCalls = 0;

    TSampleItem* Item(int Index) { return static_cast<TSampleItem*>(FItems.Items[Index]); }

    void Loaded() override;
    void DefineProperties(TFiler& Filer) override;

protected:
    void Notification(TComponent* Component, TOperation Operation) override;

private:
    void ReadSecret(TReader* Reader);
    void WriteSecret(TWriter* Writer);
    void ReadData(TStream* Stream);
    void WriteData(TStream* Stream);

    int FNumber = 5;
    TSampleFont FFont;
    TStringList FLines;
    TOwnedCollection FItems;
    TSamplePart FPart;
    TSample* FBuddy = nullptr;
};

class TSampleBox : public TSample {
    VCL_CLASS(TSampleBox, TSample)
public:
    explicit TSampleBox(TComponent* AOwner) : TSample(AOwner) {}
    ~TSampleBox() override;

    TComponent* GetParentComponent() const override { return FParent; }
    bool HasParent() const override { return FParent != nullptr; }
    void SetParentComponent(TComponent* Value) override;
    void GetChildren(const TGetChildProc& Proc, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;

    std::vector<TSampleBox*> Children;

private:
    TSampleBox* FParent = nullptr;
};

class TSampleForm : public TSampleBox {
    VCL_CLASS(TSampleForm, TSampleBox)
public:
    explicit TSampleForm(TComponent* AOwner = nullptr) : TSampleBox(AOwner) {}

    TSampleBox* Button1 = nullptr;
    TSample* Inner = nullptr;

    void Ping(TObject* Sender);
    void Count(TObject* Sender, int Count);
    int Pings = 0;
};

// A form that adds to its ancestor's.
class TSampleChildForm : public TSampleForm {
    VCL_CLASS(TSampleChildForm, TSampleForm)
public:
    explicit TSampleChildForm(TComponent* AOwner = nullptr) : TSampleForm(AOwner) {}
    int Extra = 0;
};

// A frame: its constructor reads its own form, with a Button1 and a Button2 inside.
class TSampleFrame : public TSampleForm {
    VCL_CLASS(TSampleFrame, TSampleForm)
public:
    explicit TSampleFrame(TComponent* AOwner);
    static std::string FormText;
};

// A value that must lie below a limit, which is published behind it.
class TSampleRange : public TSample {
    VCL_CLASS(TSampleRange, TSample)
public:
    explicit TSampleRange(TComponent* AOwner) : TSample(AOwner) {}
    int GetPosition() const { return FPosition; }
    void SetPosition(int Value); // raises EInvalidOperation beyond Limit
    int Limit = 10;

private:
    int FPosition = 0;
};

// Raises EInvalidOperation when it is made.
class TSampleBomb : public TSampleBox {
    VCL_CLASS(TSampleBomb, TSampleBox)
public:
    explicit TSampleBomb(TComponent* AOwner);
};

// Raises EInvalidOperation from Loaded.
class TSampleLateBomb : public TSampleBox {
    VCL_CLASS(TSampleLateBomb, TSampleBox)
public:
    explicit TSampleLateBomb(TComponent* AOwner) : TSampleBox(AOwner) {}
    void Loaded() override { throw EInvalidOperation("Late"); }
};

// The binary form of a text form.
std::string Binary(const std::string& Text);
// The text form of what WriteComponent writes.
std::string Written(TComponent* Root, TComponent* Ancestor = nullptr);
// Reads a text form into Root.
void Load(TComponent* Root, const std::string& Text);
// Reads bytes as a binary form into Root.
void LoadBytes(TComponent* Root, const std::string& Bytes);
