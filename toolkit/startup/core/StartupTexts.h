#pragma once

#include "framework/core/CString.h"

#include <cstdint>

/// @file
/// What the startup dialog says. Texts are in code page 1252.
namespace vorn
{

/// The product that the dialog's template and disclaimer name.
inline constexpr const char* kDefaultProduct = "Mapvane";

/// Stands in for a name that was not given (null); an empty name stays empty.
CString ProductName(LPCSTR given);

/// `text` with the default product's name replaced by `name`; unchanged for the default product itself.
CString NamedFor(CString text, const CString& name);

/// "Welcome to NAME".
CString WelcomeText(const CString& name);

/// "Copyright (c) 1990-2004 ..." with the sign in place of "(c)", and the owner's name.
CString CopyrightText(int firstYear, int lastYear);

/// The caption: the one of the template, which names the product, followed by " (1990-2004)".
CString CaptionText(const CString& product, int firstYear, int lastYear);

/// A data set without version, 0 or not a number, shows its coverage alone.
bool ShowsDates(float version);

/// @name Lines of a data set. The labels are padded so that what follows lines up.
/// @{
CString CoverageLine(const CString& coverage);
CString EffectiveLine(const CString& date);
/// Navigation data.
CString ExpiryLine(const CString& date, bool expired);
/// Terminal procedures.
CString NextUpdateLine(const CString& date);
/// @}

/// The folder of a program, with its backslash at the end; empty when the path names none.
CString FolderOfProgram(const CString& program);

/// Which error code tells why a program did not start: the shell's own result where it stands for the system's error of
/// the same number (file or path not found, access denied, no memory), else the system's last error.
std::uint32_t StartErrorCode(int shellResult, std::uint32_t lastError);

/// The message for it: one line break at the end, whatever the system's text ends in.
CString StartFailureText(CString systemText);

} // namespace vorn
