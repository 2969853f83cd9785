// TMenuItem: an entry of a menu, and with entries of its own a submenu.
//
// An item that the user can choose has a command, unique in the program, under which the system reports it. Native
// menus are made when they are first needed and follow the items from then on.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/graphics/OwnerDrawState.h"
#include "vcl/graphics/Types.h"
#include "vcl/menus/ShortCut.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <initializer_list>
#include <memory>
#include <vector>

class TBitmap;
class TCanvas;
class TCustomImageList;
class TMenu;
class TMenuBitmap;

VCL_EXCEPTION(EMenuError, Exception);

VCL_ENUM(TMenuBreak, mbNone, mbBreak, mbBarBreak);
VCL_ENUM(TMenuItemAutoFlag, maAutomatic, maManual, maParent);

// The caption of a separator.
inline constexpr char cLineCaption[] = "-";

class TMenuItem;
// Rebuild: more than the state of Source changed. Source is nullptr for the menu itself.
using TMenuChangeEvent = TEvent<void(TObject* Sender, TMenuItem* Source, bool Rebuild)>;
// The canvas has the item's font and colours; ARect, in its pixels, is filled with the background. The font and the
// brush may be changed freely.
using TMenuDrawItemEvent = TEvent<void(TObject* Sender, TCanvas* ACanvas, const TRect& ARect, bool Selected)>;
using TAdvancedMenuDrawItemEvent =
    TEvent<void(TObject* Sender, TCanvas* ACanvas, const TRect& ARect, TOwnerDrawState State)>;
// The canvas has the item's font; Width and Height, in pixels, are the usual ones. The system adds room of its own to
// the width.
using TMenuMeasureItemEvent = TEvent<void(TObject* Sender, TCanvas* ACanvas, int& Width, int& Height)>;

class TMenuItem : public TComponent {
    VCL_CLASS(TMenuItem, TComponent)
public:
    explicit TMenuItem(TComponent* AOwner);
    // Its items are deleted with it, whoever owns them.
    ~TMenuItem() override;
    void BeforeDestruction() override;

    // ---- the tree

    int GetCount() const { return static_cast<int>(FItems.size()); }
    PROPERTY_READ(int, Count);
    // Raises EMenuError "Menu index out of range".
    TMenuItem* GetItems(int Index) const;
    PROPERTY_INDEXED_READ(TMenuItem*, Items);
    // At the end, or at Index. Raises EMenuError "Menu inserted twice" when the item is in a menu already.
    void Add(TMenuItem* Item) { Insert(GetCount(), Item); }
    void Add(std::initializer_list<TMenuItem*> Items);
    void Insert(int Index, TMenuItem* Item);
    // Takes the item out; it is not deleted. Remove raises EMenuError "Sub-menu is not in menu" for others' items.
    void Delete(int Index);
    void Remove(TMenuItem* Item);
    // Deletes all items.
    void Clear();
    // -1 when Item is not one of this item's.
    int IndexOf(const TMenuItem* Item) const;
    // The item with this caption, accelerator marks apart and case ignored; nullptr when there is none.
    TMenuItem* Find(std::string_view Caption) const;
    int InsertNewLineBefore(TMenuItem* Item);
    int InsertNewLineAfter(TMenuItem* Item);

    TMenuItem* GetParent() const { return FParent; }
    PROPERTY_READ(TMenuItem*, Parent);
    // The menu that this item is in, however deep; nullptr when it is in none.
    TMenu* GetParentMenu() const;
    // The place among the parent's items; -1 without a parent. Setting clamps to what exists.
    int GetMenuIndex() const;
    void SetMenuIndex(int Value);
    PROPERTY(int, MenuIndex);
    bool HasParent() const override { return FParent != nullptr; }
    TComponent* GetParentComponent() const override;
    void SetParentComponent(TComponent* Value) override;
    void GetChildren(const TGetChildProc& Proc, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;

    // ---- what it is

    uint16_t GetCommand() const { return FCommand; }
    PROPERTY_READ(uint16_t, Command);
    // The native menu with this item's items; made when there is none yet. Owned by the item.
    HMENU GetHandle();
    PROPERTY_READ(HMENU, Handle);
    bool HandleAllocated() const { return FHandle != nullptr; }

    bool IsLine() const { return FCaption == cLineCaption; }
    // The caption as the item's menu shows it, in which & marks the accelerator.
    AnsiString ShownCaption() const;
    // A typed letter chooses the item: it is its accelerator, and the item is visible and no separator. Whether it is
    // enabled does not matter.
    bool AnswersTo(uint16_t Letter) const;
    // What a click on the item does: AutoCheck, then OnClick. Nothing while the item is disabled.
    virtual void Click();
    // True when the item, and everything it is in, is visible and enabled.
    bool CanBeChosen() const;

    // Gives each item without an accelerator of its own, or with a repeated one, a free letter, when AutoHotkeys says
    // so or ForceRethink. True when anything changed. The native menu does it before it shows.
    bool RethinkHotkeys(bool ForceRethink = false);

    // The images that the item's ImageIndex counts in; nullptr when there are none.
    TCustomImageList* GetImageList() const;
    // The picture shown beside the caption, instead of an image of the list. The item's own; setting copies. The colour
    // of its lower left pixel is left out.
    TBitmap* GetBitmap();
    void SetBitmap(TBitmap* Value);
    PROPERTY(TBitmap*, Bitmap);
    // True when a bitmap, or an index into a list that is there, says what to show. It is grayed while the item is
    // disabled.
    bool HasImage() const;

#define MENU_ITEM_VALUE(Type, Name, Field)                                                                             \
    Type Get##Name() const { return Field; }                                                                           \
    void Set##Name(Type Value);                                                                                        \
    PROPERTY(Type, Name)

    bool AutoCheck = false;
    MENU_ITEM_VALUE(TMenuItemAutoFlag, AutoHotkeys, FAutoHotkeys);
    // Separators that have nothing to separate do not show.
    MENU_ITEM_VALUE(TMenuItemAutoFlag, AutoLineReduction, FAutoLineReduction);
    // Starts a new column.
    MENU_ITEM_VALUE(TMenuBreak, Break, FBreak);
    const AnsiString& GetCaption() const { return FCaption; }
    // "-" makes a separator; & marks the accelerator.
    void SetCaption(const AnsiString& Value);
    PROPERTY(AnsiString, Caption);
    MENU_ITEM_VALUE(bool, Checked, FChecked);
    // Images of this item's items, instead of the menu's.
    MENU_ITEM_VALUE(TCustomImageList*, SubMenuImages, FSubMenuImages);
    // Bold, and chosen by a double click on its submenu; one at most in a menu.
    MENU_ITEM_VALUE(bool, Default, FDefault);
    MENU_ITEM_VALUE(bool, Enabled, FEnabled);
    // Raises EMenuError "GroupIndex cannot be less than a previous menu item's GroupIndex". Later siblings with
    // a lower one get the same.
    MENU_ITEM_VALUE(uint8_t, GroupIndex, FGroupIndex);
    THelpContext HelpContext = 0;
    AnsiString Hint;
    MENU_ITEM_VALUE(int, ImageIndex, FImageIndex);
    // Of the radio items of a group only one is checked.
    MENU_ITEM_VALUE(bool, RadioItem, FRadioItem);
    MENU_ITEM_VALUE(TShortCut, ShortCut, FShortCut);
    MENU_ITEM_VALUE(bool, Visible, FVisible);
#undef MENU_ITEM_VALUE

    // These are for items of menus with OwnerDraw, which look as usual without them. OnDrawItem only comes when there
    // is no OnAdvancedDrawItem.
    TAdvancedMenuDrawItemEvent OnAdvancedDrawItem;
    TNotifyEvent OnClick;
    TMenuDrawItemEvent OnDrawItem;
    TMenuMeasureItemEvent OnMeasureItem;

protected:
    // TopLevel: the item lies in the bar of a main menu.
    virtual void AdvancedDrawItem(TCanvas* ACanvas, const TRect& ARect, TOwnerDrawState State, bool TopLevel);
    virtual void DrawItem(TCanvas* ACanvas, const TRect& ARect, bool Selected);
    // In and out: pixels.
    virtual void MeasureItem(TCanvas* ACanvas, int& Width, int& Height);
    // Something about the item changed; the menu's OnChange follows.
    virtual void MenuChanged(bool Rebuild);

private:
    friend class TMenu;

    bool HasBitmap() const;
    TSize ImageSize() const;
    int ImageColumn() const;
    void BitmapChanged(TObject* Sender);
    bool IsSeparator() const;
    bool IsOwnerDrawn() const;
    bool IsOnBar() const;
    AnsiString ShownShortCut() const;
    void DrawImage(TCanvas* Canvas, const TPoint& Place);
    void DrawOnBar(TCanvas* Canvas, TRect R, TOwnerDrawState State);
    void DrawInPopup(TCanvas* Canvas, TRect R, TOwnerDrawState State);
    void Measure(MEASUREITEMSTRUCT& Measured);
    void Draw(const DRAWITEMSTRUCT& Asked);
    intptr_t MenuChar(wchar_t Letter);

    void SubtreeChanged();
    void ChangeLook();
    void ChangeShape();
    void ItemsChanged(bool KindChanged);
    void UpdateHandle();
    void FillNative();
    void FillItemInfo(MENUITEMINFOW& Info, TWideString& Text) const;
    void AppendTo(HMENU Menu);
    void DetachNative(TMenuItem* Item);
    void FreeNative();
    bool TurnSiblingsOff();
    int NewLineAt(int Index);
    TMenuItemAutoFlag Inherit(TMenuItemAutoFlag TMenuItem::* Flag) const;

    TMenuItem* FParent = nullptr;
    TMenu* FMenu = nullptr; // of the root item only
    HMENU FHandle = nullptr;
    std::vector<TMenuItem*> FItems;
    AnsiString FCaption;
    TComponentRef<TCustomImageList> FSubMenuImages{this, &TMenuItem::SubtreeChanged};
    std::unique_ptr<TMenuBitmap> FBitmap; // made when it is asked for
    int FImageIndex = -1;
    uint16_t FCommand;
    TShortCut FShortCut = scNone;
    uint8_t FGroupIndex = 0;
    TMenuBreak FBreak = mbNone;
    TMenuItemAutoFlag FAutoHotkeys = maParent;
    TMenuItemAutoFlag FAutoLineReduction = maParent;
    bool FChecked = false;
    bool FDefault = false;
    bool FEnabled = true;
    bool FRadioItem = false;
    bool FVisible = true;
    bool FStale = false; // the native menu is not what the items say
};

// A new item with the values given, owned by AOwner if that is not nullptr.
TMenuItem* NewItem(const AnsiString& Caption, TShortCut ShortCut, bool Checked, bool Enabled,
                   const TNotifyEvent& OnClick, THelpContext HelpContext, const AnsiString& Name,
                   TComponent* AOwner = nullptr);
// A separator.
TMenuItem* NewLine(TComponent* AOwner = nullptr);
// An item with items.
TMenuItem* NewSubMenu(const AnsiString& Caption, THelpContext HelpContext, const AnsiString& Name,
                      std::initializer_list<TMenuItem*> Items, bool Enabled = true, TComponent* AOwner = nullptr);
