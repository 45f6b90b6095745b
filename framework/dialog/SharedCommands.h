#pragma once

#include <windows.h>

class CWnd;
struct AFX_CMDHANDLERINFO;

namespace vorn
{
/// Offers a command that a dialog or sheet has not handled to its owner and then to the application, if it is one of
/// those that belong to more than one window (ids 0x8000 to 0xEFFF). Smaller ids are the window's own controls.
/// @return TRUE when somebody has handled it
BOOL OfferSharedCommand(CWnd& window, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo);
} // namespace vorn
