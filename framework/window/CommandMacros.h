#pragma once

/// @file
/// Message map macros for commands, control notifications, WM_NOTIFY notifications, private
/// and registered messages. Each comment gives the handler's signature.

class CCmdUI;

/// A WM_NOTIFY notification on its way to a handler.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

#define AFX_LAMBDA [](CCmdTarget * afxTarget, [[maybe_unused]] AfxMessageCall & call) -> BOOL

/// The member function with its signature checked, bound to the target.
#define AFX_BIND(memberFxn, result, parameters)                                                                        \
    (static_cast<ThisClass*>(afxTarget)->*static_cast<result(ThisClass::*) parameters>(memberFxn))

#define AFX_ID_ENTRY(message, code, first, last, statement)                                                            \
    {static_cast<UINT>(message), static_cast<UINT>(code), static_cast<UINT>(first),                                    \
     static_cast<UINT>(last),    AFX_LAMBDA{statement},   nullptr},

#define AFX_ID_VOID(message, code, first, last, memberFxn, parameters, arguments)                                      \
    AFX_ID_ENTRY(message, code, first, last, AFX_BIND(memberFxn, void, parameters) arguments; return TRUE;)
#define AFX_ID_BOOL(message, code, first, last, memberFxn, parameters, arguments)                                      \
    AFX_ID_ENTRY(message, code, first, last, return AFX_BIND(memberFxn, BOOL, parameters) arguments;)

#define AFX_NOTIFY_ARGUMENTS                                                                                           \
    static_cast<AFX_NOTIFY*>(call.pExtra)->pNMHDR, static_cast<AFX_NOTIFY*>(call.pExtra)->pResult

/// void f()
#define ON_COMMAND(id, memberFxn) AFX_ID_VOID(WM_COMMAND, CN_COMMAND, id, id, memberFxn, (), ())
/// BOOL f(UINT id): FALSE lets the command go on to other handlers
#define ON_COMMAND_EX(id, memberFxn) AFX_ID_BOOL(WM_COMMAND, CN_COMMAND, id, id, memberFxn, (UINT), (call.nID))
/// void f(UINT id)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    AFX_ID_VOID(WM_COMMAND, CN_COMMAND, id, idLast, memberFxn, (UINT), (call.nID))
/// BOOL f(UINT id)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                                     \
    AFX_ID_BOOL(WM_COMMAND, CN_COMMAND, id, idLast, memberFxn, (UINT), (call.nID))
/// void f(CCmdUI* cmdUI)
#define ON_UPDATE_COMMAND_UI(id, memberFxn) ON_UPDATE_COMMAND_UI_RANGE(id, id, memberFxn)
/// void f(CCmdUI* cmdUI)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    AFX_ID_VOID(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, memberFxn, (CCmdUI*), (static_cast<CCmdUI*>(call.pExtra)))

/// void f()
#define ON_CONTROL(wNotifyCode, id, memberFxn) AFX_ID_VOID(WM_COMMAND, wNotifyCode, id, id, memberFxn, (), ())
/// void f(UINT id)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    AFX_ID_VOID(WM_COMMAND, wNotifyCode, id, idLast, memberFxn, (UINT), (call.nID))

/// void f(NMHDR* header, LRESULT* result)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    AFX_ID_VOID(WM_NOTIFY, wNotifyCode, id, id, memberFxn, (NMHDR*, LRESULT*), (AFX_NOTIFY_ARGUMENTS))
/// BOOL f(UINT id, NMHDR* header, LRESULT* result)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn) ON_NOTIFY_EX_RANGE(wNotifyCode, id, id, memberFxn)
/// void f(UINT id, NMHDR* header, LRESULT* result)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                            \
    AFX_ID_VOID(WM_NOTIFY, wNotifyCode, id, idLast, memberFxn, (UINT, NMHDR*, LRESULT*),                               \
                (call.nID, AFX_NOTIFY_ARGUMENTS))
/// BOOL f(UINT id, NMHDR* header, LRESULT* result)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                                         \
    AFX_ID_BOOL(WM_NOTIFY, wNotifyCode, id, idLast, memberFxn, (UINT, NMHDR*, LRESULT*),                               \
                (call.nID, AFX_NOTIFY_ARGUMENTS))

/// LRESULT f(WPARAM, LPARAM)
#define ON_MESSAGE(message, memberFxn)                                                                                 \
    AFX_ID_ENTRY(message, 0, 0, 0,                                                                                     \
                 call.Answer(AFX_BIND(memberFxn, LRESULT, (WPARAM, LPARAM))(call.wParam, call.lParam));                \
                 return TRUE;)
/// void f(WPARAM, LPARAM), in a CWinThread's map
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                          \
    AFX_ID_VOID(message, 0, 0, 0, memberFxn, (WPARAM, LPARAM), (call.wParam, call.lParam))

/// Marks entries whose message number is only known at run time.
inline constexpr UINT AFX_REGISTERED_MESSAGE = 0xC000;

/// LRESULT f(WPARAM, LPARAM); the variable holds what RegisterWindowMessage answered
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                             \
    {AFX_REGISTERED_MESSAGE, 0, 0, 0,                                                                                  \
     AFX_LAMBDA{call.Answer(AFX_BIND(memberFxn, LRESULT, (WPARAM, LPARAM))(call.wParam, call.lParam));                 \
    return TRUE;                                                                                                       \
    }                                                                                                                  \
    , &nMessageVariable                                                                                                \
    }                                                                                                                  \
    ,
/// void f(WPARAM, LPARAM), in a CWinThread's map
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                                      \
    {AFX_REGISTERED_MESSAGE, 0, 0, 0,                                                                                  \
     AFX_LAMBDA{AFX_BIND(memberFxn, void, (WPARAM, LPARAM))(call.wParam, call.lParam);                                 \
    return TRUE;                                                                                                       \
    }                                                                                                                  \
    , &nMessageVariable                                                                                                \
    }                                                                                                                  \
    ,
