// The only door to windows.h. The macros that share a name with something of ours are removed again, so that a class
// means the same in every file.
#pragma once

#if !defined(WIN32_LEAN_AND_MEAN)
#define WIN32_LEAN_AND_MEAN
#endif
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#if !defined(UNICODE)
#define UNICODE
#endif
#if !defined(_WIN32_WINNT)
#define _WIN32_WINNT 0x0601
#endif
#if !defined(STRICT)
#define STRICT
#endif

// clang-format off
#include <windows.h>
#include <windowsx.h>
#include <commctrl.h>
#include <shellapi.h>
#include <commdlg.h>
#include <oleacc.h>
// clang-format on

#undef AppendMenu
#undef CreateDirectory
#undef CreateFile
#undef CreateFont
#undef CreateFontIndirect
#undef CreateWindow
#undef CreateWindowEx
#undef CreateMDIWindow
#undef DefWindowProc
#undef DeleteFile
#undef DispatchMessage
#undef DrawIcon
#undef DrawState
#undef DrawText
#undef DrawTextEx
#undef ExtTextOut
#undef FindClose
#undef FindFirst
#undef FindNext
#undef FindResource
#undef FindText
#undef FindWindow
#undef GetClassInfo
#undef GetClassName
#undef GetCommandLine
#undef GetCurrentDirectory
#undef GetCurrentTime
#undef GetFirstChild
#undef GetMessage
#undef GetNextSibling
#undef GetNextWindow
#undef GetObject
#undef GetParent_
#undef GetProp
#undef GetTextExtent
#undef GetTextMetrics
#undef GetWindowText
#undef InsertMenu
#undef InsertMenuItem
#undef IsMaximized
#undef IsMinimized
#undef IsRestored
#undef LoadBitmap
#undef LoadCursor
#undef LoadIcon
#undef LoadImage
#undef LoadString
#undef MessageBox
#undef ModifyMenu
#undef PeekMessage
#undef PlaySound
#undef PostMessage
#undef Rectangle_
#undef RegisterClass
#undef RegisterClassEx
#undef SelectFont
#undef SelectBrush
#undef SelectPen
#undef SelectBitmap
#undef DeletePen
#undef DeleteBrush
#undef DeleteFont
#undef DeleteBitmap
#undef SendMessage
#undef SetPort
#undef SetProp
#undef SetWindowText
#undef TextOut
#undef UnregisterClass
#undef Yield
#undef CopyCursor
#undef GetOpenFileName
#undef GetSaveFileName
#undef ChooseColor
#undef ChooseFont
#undef EnumFonts
#undef StartDoc
#undef ShellExecute
#undef GetUserName
#undef GetMonitorInfo
#undef SetParent_
#undef ERROR
#undef interface
#undef small
#undef near
#undef far
#undef DELETE
