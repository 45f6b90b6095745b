#pragma once

#include "apps/sample/StartOptions.h"

#include <VornCommon.h>

class BareWindows;
class MainFrame;

/// The sample's application object: the framework's and the library's in one.
class SampleApp : public CWinApp, public VornCommonApp
{
public:
    SampleApp();

    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    void RunRounds(const StartOptions& options);
    void PrintFloor(const BareWindows& windows);
    bool ShowStartup(const StartOptions& options);
    bool CreateMainFrame(const StartOptions& options);
    bool ApplyOptions(const StartOptions& options);
    void RunUnattended(const StartOptions& options);
    void TakeShots(const std::string& folder);

    int m_exitCode = 0;
    bool m_unattended = false; ///< no window ends the program with a status of its own
};
