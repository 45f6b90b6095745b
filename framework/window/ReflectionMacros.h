#pragma once

/// @file
/// Message map macros for messages that a parent window reflects to the control that sent
/// them. Each comment gives the handler's signature.

#define AFX_REFLECT_VOID(message, name, parameters, arguments)                                                         \
    AFX_ID_VOID(WM_REFLECT_BASE + (message), 0, 0, 0, &ThisClass::name, parameters, arguments)
#define AFX_REFLECT_VALUE(message, name, type, parameters, arguments)                                                  \
    AFX_ID_ENTRY(WM_REFLECT_BASE + (message), 0, 0, 0,                                                                 \
                 call.Answer(AFX_BIND(&ThisClass::name, type, parameters) arguments);                                  \
                 return TRUE;)

/// void f(): the parent's handler is not called
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                                     \
    AFX_ID_VOID(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, memberFxn, (), ())
/// BOOL f(): TRUE keeps the parent's handler from being called
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                                  \
    AFX_ID_BOOL(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, memberFxn, (), ())
/// void f(NMHDR* header, LRESULT* result): the parent's handler is not called
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                                      \
    AFX_ID_VOID(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, memberFxn, (NMHDR*, LRESULT*), (AFX_NOTIFY_ARGUMENTS))
/// BOOL f(NMHDR* header, LRESULT* result): TRUE keeps the parent's handler from being called
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                                   \
    AFX_ID_BOOL(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, memberFxn, (NMHDR*, LRESULT*), (AFX_NOTIFY_ARGUMENTS))
/// void f(CCmdUI* cmdUI)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                                        \
    AFX_ID_VOID(WM_REFLECT_BASE + WM_COMMAND, CN_UPDATE_COMMAND_UI, 0, 0, memberFxn, (CCmdUI*),                        \
                (static_cast<CCmdUI*>(call.pExtra)))

/// HBRUSH CtlColor(CDC* dc, UINT kind): a null brush lets the parent choose
#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    AFX_ID_ENTRY(WM_REFLECT_BASE + AFX_WM_CTLCOLOR, 0, 0, 0,                                                           \
                 call.Answer(AFX_BIND(&ThisClass::CtlColor, HBRUSH, (CDC*, UINT))(call.DcW(), call.CtlColorType()));   \
                 return call.result != 0;)
/// void DrawItem(LPDRAWITEMSTRUCT)
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    AFX_REFLECT_VOID(WM_DRAWITEM, DrawItem, (LPDRAWITEMSTRUCT), (call.PointerL<LPDRAWITEMSTRUCT>()))
/// void MeasureItem(LPMEASUREITEMSTRUCT)
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    AFX_REFLECT_VOID(WM_MEASUREITEM, MeasureItem, (LPMEASUREITEMSTRUCT), (call.PointerL<LPMEASUREITEMSTRUCT>()))
/// void DeleteItem(LPDELETEITEMSTRUCT)
#define ON_WM_DELETEITEM_REFLECT()                                                                                     \
    AFX_REFLECT_VOID(WM_DELETEITEM, DeleteItem, (LPDELETEITEMSTRUCT), (call.PointerL<LPDELETEITEMSTRUCT>()))
/// int CompareItem(LPCOMPAREITEMSTRUCT)
#define ON_WM_COMPAREITEM_REFLECT()                                                                                    \
    AFX_REFLECT_VALUE(WM_COMPAREITEM, CompareItem, int, (LPCOMPAREITEMSTRUCT), (call.PointerL<LPCOMPAREITEMSTRUCT>()))
/// int CharToItem(UINT key, UINT index)
#define ON_WM_CHARTOITEM_REFLECT()                                                                                     \
    AFX_REFLECT_VALUE(WM_CHARTOITEM, CharToItem, int, (UINT, UINT), (call.LoWordW(), call.HiWordW()))
/// int VKeyToItem(UINT key, UINT index)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                                     \
    AFX_REFLECT_VALUE(WM_VKEYTOITEM, VKeyToItem, int, (UINT, UINT), (call.LoWordW(), call.HiWordW()))
/// void HScroll(UINT code, UINT position)
#define ON_WM_HSCROLL_REFLECT() AFX_REFLECT_VOID(WM_HSCROLL, HScroll, (UINT, UINT), (call.LoWordW(), call.HiWordW()))
/// void VScroll(UINT code, UINT position)
#define ON_WM_VSCROLL_REFLECT() AFX_REFLECT_VOID(WM_VSCROLL, VScroll, (UINT, UINT), (call.LoWordW(), call.HiWordW()))
/// void ParentNotify(UINT message, LPARAM lParam)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                                   \
    AFX_REFLECT_VOID(WM_PARENTNOTIFY, ParentNotify, (UINT, LPARAM), (call.LoWordW(), call.lParam))
