#pragma once

/// @file
/// Message maps: tables that connect window messages, commands and notifications to member
/// functions. A class declares its map with DECLARE_MESSAGE_MAP and defines it with
/// BEGIN_MESSAGE_MAP ... END_MESSAGE_MAP. The base class's map is found through a function,
/// so that maps chain across libraries.
#include "framework/core/Export.h"

#include <windows.h>

#include <atomic>
#include <cstddef>
#include <cstdint>

class CCmdTarget;
struct AfxMessageCall;

/// Entry point of a map entry: calls the member function with arguments taken from the call.
/// Returns whether the message counts as handled.
using AFX_PMSG = BOOL (*)(CCmdTarget* target, AfxMessageCall& call);

/// One line of a message map.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;                ///< window message; WM_COMMAND or WM_NOTIFY for commands; 0 ends the table
    UINT nCode;                   ///< notification or command code
    UINT nID;                     ///< first control or command id
    UINT nLastID;                 ///< last control or command id
    AFX_PMSG pfn;                 ///< entry point; null ends the table
    const UINT* pnRegisteredCode; ///< for registered messages: where the number is kept
};

/// Remembers for recent window messages which entry of a map (its base maps included)
/// handles them, or that none does. Lock-free: each slot is one 64-bit word.
struct AfxMessageMapCache
{
    static constexpr std::size_t kSlots = 64;
    std::atomic<std::uint64_t> slots[kSlots];
};

/// A class's map: its base class's map, its own entries, its cache.
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< null in CCmdTarget only
    const AFX_MSGMAP_ENTRY* lpEntries;
    AfxMessageMapCache* pCache;
};

/// Marks message handlers; means nothing to the compiler.
#define afx_msg

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define AFX_MAP_BODY(theClass, baseClass)                                                                              \
    {                                                                                                                  \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using TheBaseClass = baseClass;                                                                                \
        static AfxMessageMapCache afxCache;                                                                            \
        static const AFX_MSGMAP_ENTRY afxEntries[] = {
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                  \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* theClass::GetThisMessageMap() AFX_MAP_BODY(theClass, baseClass)

/// The same for a class template of one type parameter.
#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, typeName, baseClass)                                                      \
    template <typename typeName>                                                                                       \
    const AFX_MSGMAP* theClass<typeName>::GetMessageMap() const                                                        \
    {                                                                                                                  \
        return theClass<typeName>::GetThisMessageMap();                                                                \
    }                                                                                                                  \
    template <typename typeName>                                                                                       \
    const AFX_MSGMAP* theClass<typeName>::GetThisMessageMap() AFX_MAP_BODY(theClass<typeName>, baseClass)

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, nullptr, nullptr                                                                                   \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP afxMap = {[]() -> const AFX_MSGMAP*                                                        \
                                      {                                                                                \
                                          return TheBaseClass::GetThisMessageMap();                                    \
                                      },                                                                               \
                                      afxEntries, &afxCache};                                                          \
    return &afxMap;                                                                                                    \
    }

/// Code of a command (menu item, accelerator) as against a control notification.
inline constexpr int CN_COMMAND = 0;
/// Code of a command-UI update.
inline constexpr int CN_UPDATE_COMMAND_UI = -1;

/// Added to a message's number when a parent reflects it to the control that sent it.
inline constexpr UINT WM_REFLECT_BASE = 0xBC00;

#include "framework/window/CommandMacros.h"
#include "framework/window/MessageCall.h"
#include "framework/window/NotificationMacros.h"
#include "framework/window/ReflectionMacros.h"
#include "framework/window/WindowMessageMacros.h"
