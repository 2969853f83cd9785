// TMenu: what main menus and popup menus share. The entries hang on its root item, Items.
#pragma once

#include "vcl/menus/MenuItem.h"

// What FindItem looks for.
enum TFindItemKind { fkCommand, fkHandle, fkShortCut };

class TMenu : public TComponent {
    VCL_CLASS(TMenu, TComponent)
public:
    explicit TMenu(TComponent* AOwner);

    // The root item; owned by the menu.
    TMenuItem* GetItems() const { return FItems; }
    PROPERTY_READ(TMenuItem*, Items);
    HMENU GetHandle() { return FItems->GetHandle(); }
    PROPERTY_READ(HMENU, Handle);

    // The item with a command, with a native submenu (Value is the HMENU) or with a shortcut; nullptr when there is
    // none.
    TMenuItem* FindItem(uintptr_t Value, TFindItemKind Kind) const;
    // Clicks the item with this command; false when there is none.
    bool DispatchCommand(uint16_t Command);
    // The submenu is about to open: clicks its item. False when it is none of this menu's.
    virtual bool DispatchPopup(HMENU Handle);
    // Clicks the item that has this shortcut, as if its submenus had been opened; false when there is none or it cannot
    // be chosen.
    virtual bool IsShortCut(TShortCut ShortCut);
    // The long part of the hint of the item that a WM_MENUSELECT is about; empty when there is none.
    AnsiString HintOf(const TMessage& MenuSelect) const;
    // Answers WM_MEASUREITEM, WM_DRAWITEM and WM_MENUCHAR. False when Message is another one or not about this menu.
    bool DispatchDrawing(TMessage& Message);

    // The window that shows the menu; owned elsewhere.
    HWND GetWindowHandle() const { return FWindowHandle; }
    virtual void SetWindowHandle(HWND Value) { FWindowHandle = Value; }
    PROPERTY(HWND, WindowHandle);
    bool IsRightToLeft() const;

    TMenuItemAutoFlag GetAutoHotkeys() const { return FItems->AutoHotkeys; }
    void SetAutoHotkeys(TMenuItemAutoFlag Value) { FItems->AutoHotkeys = Value; }
    PROPERTY(TMenuItemAutoFlag, AutoHotkeys);
    TMenuItemAutoFlag GetAutoLineReduction() const { return FItems->AutoLineReduction; }
    void SetAutoLineReduction(TMenuItemAutoFlag Value) { FItems->AutoLineReduction = Value; }
    PROPERTY(TMenuItemAutoFlag, AutoLineReduction);
    TBiDiMode GetBiDiMode() const { return FBiDiMode; }
    void SetBiDiMode(TBiDiMode Value);
    PROPERTY(TBiDiMode, BiDiMode);
    bool ParentBiDiMode = true;
    TCustomImageList* GetImages() const { return FImages; }
    void SetImages(TCustomImageList* Value);
    PROPERTY(TCustomImageList*, Images);
    // The items are drawn by the program: by their OnAdvancedDrawItem or OnDrawItem, or else by the framework.
    bool GetOwnerDraw() const { return FOwnerDraw; }
    void SetOwnerDraw(bool Value);
    PROPERTY(bool, OwnerDraw);

    TMenuChangeEvent OnChange;

    void GetChildren(const TGetChildProc& Proc, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;

protected:
    friend class TMenuItem;

    void Loaded() override;
    // An item changed; Source is nullptr for the menu itself.
    virtual void MenuChanged(TObject* Sender, TMenuItem* Source, bool Rebuild);
    // The items lie side by side in a bar.
    virtual bool IsMenuBar() const { return false; }
    // The MFT_ flags that the item's native entry gets besides those of its values. With MFT_OWNERDRAW the item's
    // command becomes the entry's data.
    virtual unsigned EntryType(const TMenuItem&) const { return 0; }
    // What the native entry says, and where its accelerator is looked for.
    virtual AnsiString EntryCaption(const TMenuItem& Item) const { return Item.Caption; }
    // The items on the menu's first level, those of a merged menu among them.
    virtual const std::vector<TMenuItem*>& ShownItems() const { return FItems->FItems; }
    // Whether one of them is Item.
    virtual bool IsShown(const TMenuItem* Item) const { return Item->Parent == FItems; }
    // The native menu is filled anew when it is needed next.
    void MarkStale() { FItems->FStale = true; }

    HWND FWindowHandle = nullptr;

private:
    HMENU CreateNativeMenu() const;

    TMenuItem* FindCommand(uintptr_t Command) const;
    bool OpenPathTo(TMenuItem* Item);
    void ImagesGone() { FItems->SubtreeChanged(); }

    TMenuItem* FItems;
    TComponentRef<TCustomImageList> FImages{this, &TMenu::ImagesGone};
    TBiDiMode FBiDiMode = bdLeftToRight;
    bool FOwnerDraw = false;
};
