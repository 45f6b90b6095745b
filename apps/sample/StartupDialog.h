#pragma once

#include "apps/datasets/DataSets.h"

#include <VornCommon.h>

#include <string>

/// The library's startup dialog with the sample's data sets and its update program. For pictures and tests it closes
/// itself as soon as it is painted.
class StartupDialog : public CStartupDlg
{
public:
    explicit StartupDialog(Currency currency);

    /// @param closes whether nobody is there to close it
    /// @param snapshotFile where its picture goes then; empty for nowhere
    void RunUnattended(bool closes, const std::string& snapshotFile);

    /// The picture could not be written.
    bool HasFailed() const;

    /// Every text of the dialog as it stood when it was painted, a line each.
    std::string Summary() const;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    struct Arguments;

    explicit StartupDialog(Arguments&& with);
    void Finish();

    bool m_closes = false;
    bool m_finished = false;
    bool m_failed = false;
    std::string m_snapshotFile;
    std::string m_summary;
};
