#include "vcl/controls/Accessible.h"

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/WinControl.h"
#include "vcl/system/Guard.h"
#include "vcl/system/Utf.h"

namespace {

// From the system's libraries, which programs without assistive technology never need.
struct TOleAcc {
    decltype(&LresultFromObject) ResultFrom = nullptr;
    decltype(&CreateStdAccessibleObject) CreateStandard = nullptr;
    decltype(&SysAllocString) AllocateString = nullptr;

    static const TOleAcc& Get()
    {
        static const TOleAcc Functions = [] {
            TOleAcc Result;
            const auto Find = []<class T>(const wchar_t* Library, const char* Name, T& Function) {
                if (HMODULE Module = LoadLibraryW(Library))
                    Function = reinterpret_cast<T>(reinterpret_cast<void*>(GetProcAddress(Module, Name)));
            };
            Find(L"oleacc.dll", "LresultFromObject", Result.ResultFrom);
            Find(L"oleacc.dll", "CreateStdAccessibleObject", Result.CreateStandard);
            Find(L"oleaut32.dll", "SysAllocString", Result.AllocateString);
            return Result;
        }();
        return Functions;
    }
    bool IsThere() const { return ResultFrom && CreateStandard && AllocateString; }
};

bool IsSelf(const VARIANT& Child)
{
    return Child.vt == VT_I4 && Child.lVal == CHILDID_SELF;
}

class TAccessibleObject final : public IAccessible {
public:
    // Takes the reference to Standard over.
    TAccessibleObject(TWinControl& Control, IAccessible* Standard) : FControl(&Control), FStandard(Standard) {}
    TAccessibleObject(const TAccessibleObject&) = delete;

    // ---- IUnknown

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID Id, void** Object) override
    {
        const bool Known = Id == IID_IUnknown || Id == IID_IDispatch || Id == IID_IAccessible;
        *Object = Known ? static_cast<IAccessible*>(this) : nullptr;
        if (Known)
            AddRef();
        return Known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++FReferences; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG Left = --FReferences;
        if (Left == 0)
            delete this;
        return Left;
    }

    // ---- IDispatch: the interface is called directly

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* Count) override
    {
        *Count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return E_NOTIMPL;
    }

    // ---- IAccessible: what the control says

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT Child, BSTR* Name) override
    {
        if (!IsSelf(Child))
            return FStandard->get_accName(Child, Name);
        *Name = nullptr;
        return Ask([&] {
            if (const AnsiString Text = FControl->AccessibleName(); !Text.empty())
                *Name = TOleAcc::Get().AllocateString(TWideText(Text).c_str());
            return *Name ? S_OK : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT Child, VARIANT* Role) override
    {
        if (!IsSelf(Child))
            return FStandard->get_accRole(Child, Role);
        return Ask([&] { return Number(Role, FControl->AccessibleRole()); });
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT Child, VARIANT* State) override
    {
        if (!IsSelf(Child))
            return FStandard->get_accState(Child, State);
        return Ask([&] {
            int Flags = FControl->AccessibleState();
            if (FControl->CanFocus())
                Flags |= STATE_SYSTEM_FOCUSABLE;
            if (FControl->Focused())
                Flags |= STATE_SYSTEM_FOCUSED;
            return Number(State, Flags);
        });
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT Child) override
    {
        if (!IsSelf(Child))
            return FStandard->accDoDefaultAction(Child);
        return Ask([&] { return FControl->AccessibleDefaultAction() ? S_OK : DISP_E_MEMBERNOTFOUND; });
    }

    // ---- and what the system knows of every window

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** Parent) override { return FStandard->get_accParent(Parent); }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* Count) override { return FStandard->get_accChildCount(Count); }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT Child, IDispatch** Object) override
    {
        return FStandard->get_accChild(Child, Object);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT Child, BSTR* Value) override
    {
        return FStandard->get_accValue(Child, Value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT Child, BSTR* Text) override
    {
        return FStandard->get_accDescription(Child, Text);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT Child, BSTR* Text) override
    {
        return FStandard->get_accHelp(Child, Text);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* File, VARIANT Child, long* Topic) override
    {
        return FStandard->get_accHelpTopic(File, Child, Topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT Child, BSTR* Key) override
    {
        return FStandard->get_accKeyboardShortcut(Child, Key);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* Child) override { return FStandard->get_accFocus(Child); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* Children) override
    {
        return FStandard->get_accSelection(Children);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT Child, BSTR* Action) override
    {
        return FStandard->get_accDefaultAction(Child, Action);
    }
    HRESULT STDMETHODCALLTYPE accSelect(long Flags, VARIANT Child) override
    {
        return FStandard->accSelect(Flags, Child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(long* Left, long* Top, long* Width, long* Height, VARIANT Child) override
    {
        return FStandard->accLocation(Left, Top, Width, Height, Child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long Direction, VARIANT Start, VARIANT* End) override
    {
        return FStandard->accNavigate(Direction, Start, End);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(long X, long Y, VARIANT* Child) override
    {
        return FStandard->accHitTest(X, Y, Child);
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

private:
    ~TAccessibleObject() { FStandard->Release(); }

    template <class Question>
    HRESULT Ask(Question&& Answer)
    {
        if (!FControl)
            return CO_E_OBJNOTCONNECTED;
        HRESULT Result = E_FAIL;
        Guarded(nullptr, [&] { Result = Answer(); });
        return Result;
    }
    static HRESULT Number(VARIANT* Target, int Value)
    {
        Target->vt = VT_I4;
        Target->lVal = Value;
        return S_OK;
    }

    TComponentRef<TWinControl> FControl;
    IAccessible* FStandard;
    ULONG FReferences = 1;
};

} // namespace

LRESULT AccessibleObjectOf(TWinControl& Control, WPARAM WParam, LPARAM LParam)
{
    const TOleAcc& Library = TOleAcc::Get();
    void* Standard = nullptr;
    if (static_cast<LONG>(LParam) != OBJID_CLIENT || !Library.IsThere() ||
        FAILED(Library.CreateStandard(Control.GetHandle(), OBJID_CLIENT, IID_IAccessible, &Standard)))
        return 0;
    auto* Object = new TAccessibleObject(Control, static_cast<IAccessible*>(Standard));
    const LRESULT Result = Library.ResultFrom(IID_IAccessible, WParam, Object);
    Object->Release();
    return Result;
}
