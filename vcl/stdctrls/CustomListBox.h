// TCustomListBox: the system's list box.
//
// Items can be chosen and read before there is a window, except for the selection of several (Selected, SelCount).
#pragma once

#include "vcl/controls/ControlCanvas.h"
#include "vcl/controls/WinControl.h"
#include "vcl/stdctrls/ListBoxItems.h"
#include "vcl/stdctrls/StdTypes.h"
#include "vcl/stdctrls/TypeAhead.h"

// What a virtual list box asks for: the text of an item, its object, and the item that begins with a text (-1: none).
using TLBGetDataEvent = TEvent<void(TWinControl* Control, int Index, AnsiString& Data)>;
using TLBGetDataObjectEvent = TEvent<void(TWinControl* Control, int Index, TObject*& DataObject)>;
using TLBFindDataEvent = TEvent<int(TWinControl* Control, const AnsiString& FindString)>;

class TCustomListBox : public TWinControl {
    VCL_CLASS(TCustomListBox, TWinControl)
public:
    explicit TCustomListBox(TComponent* AOwner);

    // Typing chooses the item that begins with what is typed.
    bool AutoComplete = true;
    TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    PROPERTY(TBorderStyle, BorderStyle);
    // 0: one column, scrolled from top to bottom; otherwise as many side by side, scrolled sideways.
    int GetColumns() const { return FColumns; }
    void SetColumns(int Value);
    PROPERTY(int, Columns);
    // With MultiSelect: Shift and Ctrl extend the selection; otherwise each click adds or removes an item.
    bool GetExtendedSelect() const { return FExtendedSelect; }
    void SetExtendedSelect(bool Value);
    PROPERTY(bool, ExtendedSelect);
    bool GetMultiSelect() const { return FMultiSelect; }
    void SetMultiSelect(bool Value);
    PROPERTY(bool, MultiSelect);
    // Kept for form files: the input method stays as the user has set it.
    TImeMode ImeMode = imDontCare;
    AnsiString ImeName;
    // The height is cut so that no item shows in part.
    bool GetIntegralHeight() const { return FIntegralHeight; }
    void SetIntegralHeight(bool Value);
    PROPERTY(bool, IntegralHeight);
    // In pixels; for styles that the application draws. A list of texts takes its font's.
    int GetItemHeight() const;
    void SetItemHeight(int Value);
    PROPERTY(int, ItemHeight);
    // The control's own; setting copies.
    TStrings* GetItems() { return &FItems; }
    void SetItems(TStrings* Value) { FItems.Assign(Value); }
    PROPERTY(TStrings*, Items);
    // The width in pixels that can be scrolled to sideways; 0 without a bar.
    int GetScrollWidth() const { return FScrollWidth; }
    void SetScrollWidth(int Value);
    PROPERTY(int, ScrollWidth);
    bool GetSorted() const { return FSorted; }
    void SetSorted(bool Value);
    PROPERTY(bool, Sorted);
    TListBoxStyle GetStyle() const { return FStyle; }
    void SetStyle(TListBoxStyle Value);
    PROPERTY(TListBoxStyle, Style);
    // In quarters of a character's average width; 0: tabs are not expanded.
    int GetTabWidth() const { return FTabWidth; }
    void SetTabWidth(int Value);
    PROPERTY(int, TabWidth);

    // Setting raises EListError unless the list is virtual: then the application has that many items.
    int GetCount() const { return FItems.Count; }
    void SetCount(int Value);
    PROPERTY(int, Count);
    // The application keeps the items and tells what is asked for; with lbVirtualOwnerDraw it draws them, too.
    bool IsVirtual() const { return FStyle >= lbVirtual; }
    // The chosen item, with MultiSelect the one that has the focus; -1 when there is none. A number that no item has
    // chooses none.
    int GetItemIndex() const;
    void SetItemIndex(int Value);
    PROPERTY(int, ItemIndex);
    // Raise EListError "List index out of bounds (%d)". Setting one without MultiSelect chooses it, or none.
    bool GetSelected(int Index);
    void SetSelected(int Index, bool Value);
    PROPERTY_INDEXED(bool, Selected);
    int GetSelCount();
    PROPERTY_READ(int, SelCount);
    // The first item that shows.
    int GetTopIndex();
    void SetTopIndex(int Value);
    PROPERTY(int, TopIndex);

    // The item at a point of the client area. Below the last one: -1 when Existing, else Count.
    int ItemAtPos(const TPoint& Pos, bool Existing);
    // Where an item is; for Index = Count, where one more would be.
    TRect ItemRect(int Index);
    void Clear() { FItems.Clear(); }
    void ClearSelection();
    void SelectAll();
    void DeleteSelected();

    // For drawing in OnDrawItem.
    TCanvas* GetCanvas() { return &FCanvas; }
    PROPERTY_READ(TCanvas*, Canvas);

    // For the styles that the application draws. The canvas has the item's colours; the background is not drawn yet.
    TDrawItemEvent OnDrawItem;
    TMeasureItemEvent OnMeasureItem;
    // For virtual lists.
    TLBGetDataEvent OnData;
    TLBFindDataEvent OnDataFind;
    TLBGetDataObjectEvent OnDataObject;

    int AccessibleRole() const override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    void KeyPress(char16_t& Key) override;
    void Resize() override;
    virtual void DrawItem(int Index, const TRect& Rect, TOwnerDrawState State);
    virtual void MeasureItem(int Index, int& Height) { OnMeasureItem(this, Index, Height); }

private:
    friend class TListBoxItems;

    void CNCommand(TWMCommand& Message);
    void CNDrawItem(TMessage& Message);
    void CNMeasureItem(TMessage& Message);
    void CMCtl3DChanged(TMessage& Message);

    void CheckItem(int Index) const;
    void UpdateColumnWidth();
    bool OwnerDrawn() const { return FStyle != lbStandard; }

    TListBoxItems FItems;
    TControlCanvas FCanvas;
    TTypeAhead FTypeAhead;
    std::vector<int> FKeptSelection; // the selected items while there is no window
    int FKeptIndex = -1;
    int FKeptTop = 0;
    int FVirtualCount = 0;
    int FColumns = 0;
    int FItemHeight = 16;
    int FScrollWidth = 0;
    int FTabWidth = 0;
    TBorderStyle FBorderStyle = bsSingle;
    TListBoxStyle FStyle = lbStandard;
    bool FExtendedSelect = true;
    bool FMultiSelect = false;
    bool FIntegralHeight = false;
    bool FSorted = false;
};
