#pragma once

#include "apps/vorntool/core/Command.h"

#include <VornCommon.h>

#include <optional>

/// @file
/// The applications whose installation the tool looks into.
namespace vorn::tool
{

/// The option that chooses the application.
inline constexpr Option kAppOption = {"app", "NAME",
                                      "whose settings: Aerolune (if not given), VornView, Glasspad, Global, ..."};

/// The application that the call names.
/// @return its name; nothing when it can be none, which has been reported
std::optional<CString> ApplicationOf(const Command& command, const Invocation& call, Output& output);

/// Takes the place of the application that the call names, so that the library finds its settings, units and folders
/// as it does in that application itself. To be called once in the life of the process.
/// @return the application's name; nothing when it can be none, which has been reported
std::optional<CString> ActAsApplication(const Command& command, const Invocation& call, Output& output);

/// The index of the application's settings record.
int SettingsIndexOf(const CString& application);

/// Whether the settings under this name are shared by the family.
bool IsShared(const CString& application);

} // namespace vorn::tool
