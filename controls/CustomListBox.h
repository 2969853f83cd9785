// TkelCustomListBox: the library's own list box, over that of the system.
//
// It is the base for lists that keep more with an item than one number: what is read and written as an item's data goes
// through virtual functions. Items can be there before there is a window.
#pragma once

#include "controls/ListBoxStrings.h"
#include "vcl/controls/ControlCanvas.h"
#include "vcl/controls/WinControl.h"
#include "vcl/stdctrls/StdTypes.h"

class TkelCustomListBox : public TWinControl {
    VCL_CLASS(TkelCustomListBox, TWinControl)
public:
    explicit TkelCustomListBox(TComponent* AOwner);
    ~TkelCustomListBox() override;

    // ---- how the window is made; a change makes it anew, with all that was in it

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
    // The height is cut so that no item shows in part.
    bool GetIntegralHeight() const { return FIntegralHeight; }
    void SetIntegralHeight(bool Value);
    PROPERTY(bool, IntegralHeight);
    // In pixels. A window of lbStandard has the height that its first item really has. Values below 1 are ignored.
    int GetItemHeight() const;
    void SetItemHeight(int Value);
    PROPERTY(int, ItemHeight);
    bool GetMultiSelect() const { return FMultiSelect; }
    void SetMultiSelect(bool Value);
    PROPERTY(bool, MultiSelect);
    bool GetSorted() const { return FSorted; }
    void SetSorted(bool Value);
    PROPERTY(bool, Sorted);
    // lbVirtual and lbVirtualOwnerDraw count as lbOwnerDrawFixed.
    TListBoxStyle GetStyle() const { return FStyle; }
    void SetStyle(TListBoxStyle Value);
    PROPERTY(TListBoxStyle, Style);
    // In quarters of a character's average width; 0: tabs are not expanded. Negative values count as 0.
    int GetTabWidth() const { return FTabWidth; }
    void SetTabWidth(int Value);
    PROPERTY(int, TabWidth);

    // ---- items

    // The control's own; setting copies.
    TStrings* GetItems() { return &FItems; }
    void SetItems(TStrings* Value) { FItems.Assign(Value); }
    PROPERTY(TStrings*, Items);
    void Clear() { FItems.Clear(); }
    // -1 when there is none. With MultiSelect it is the item that has the focus.
    int GetItemIndex() const;
    void SetItemIndex(int Value);
    PROPERTY(int, ItemIndex);
    // Reading raises EListError "Index error" for an item that is not there, setting EListError "List Index Error".
    bool GetSelected(int Index);
    void SetSelected(int Index, bool Value);
    PROPERTY_INDEXED(bool, Selected);
    // Of a list with MultiSelect; -1 otherwise.
    int GetSelCount();
    PROPERTY_READ(int, SelCount);
    // The first item that shows.
    int GetTopIndex();
    void SetTopIndex(int Value);
    PROPERTY(int, TopIndex);
    // The item at a point of the client area. Below the last one: -1 when Existing, else the number of items. -1 for
    // points outside.
    int ItemAtPos(const TPoint& Pos, bool Existing);
    // Where an item is; for the number of items, where one more would be; empty beyond that.
    TRect ItemRect(int Index);

    // The number that goes with an item: the object of the item in Items. LB_ERR when there is no such item.
    virtual intptr_t GetItemData(int Index);
    virtual void SetItemData(int Index, intptr_t Data);
    virtual void DeleteString(int Index);
    virtual void ResetContent();

    // For drawing in OnDrawItem.
    TCanvas* GetCanvas() { return &FCanvas; }
    PROPERTY_READ(TCanvas*, Canvas);

    // The colours and the font of the item have been chosen in the canvas; nothing is drawn yet.
    TDrawItemEvent OnDrawItem;
    // Of lbOwnerDrawVariable.
    TMeasureItemEvent OnMeasureItem;

    int AccessibleRole() const override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    void WndProc(TMessage& Message) override;
    void DragCanceled() override;
    virtual void DrawItem(int Index, const TRect& Rect, TOwnerDrawState State);
    virtual void MeasureItem(int Index, int& Height);
    // Draws the item of the message; an override may move its rectangle first.
    virtual void DrawItemOf(TMessage& Message);
    void SetColumnWidth();

    // What the window keeps with an item; LB_ERR when there is no such item.
    intptr_t RawData(int Index) const { return FItems.GetData(Index); }
    void SetRawData(int Index, intptr_t Data) { FItems.SetData(Index, Data); }
    int ItemCount() const { return FItems.Count; }

private:
    void CNCommand(TWMCommand& Message);
    void CNDrawItem(TMessage& Message);
    void CNMeasureItem(TMessage& Message);
    void CMCtl3DChanged(TMessage& Message);
    void WMLButtonDown(TWMMouse& Message);
    void WMPaint(TMessage& Message);
    void WMSize(TMessage& Message);

    template <class T>
    void Remake(T& Field, T Value);
    void PaintItems(HDC Context);

    TListBoxStrings FItems;
    TControlCanvas FCanvas;
    std::vector<int> FKeptSelection; // while there is no window
    int FKeptIndex = -1;
    int FKeptTop = 0;
    int FColumns = 0;
    int FItemHeight = 16;
    int FTabWidth = 0;
    TBorderStyle FBorderStyle = bsSingle;
    TListBoxStyle FStyle = lbStandard;
    bool FExtendedSelect = true;
    bool FIntegralHeight = false;
    bool FMultiSelect = false;
    bool FSorted = false;
};
