#pragma once

#include "tests/support/ScratchFolder.h"
#include "tests/windows/files_search/ShellDialog.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

/// Gives each test two folders, Data and Data\Charts, in a folder of its own.
class FolderDialogTest : public testing::Test
{
protected:
    using Checks = std::function<void(const vorn::test::ShellDialog&)>;

    FolderDialogTest()
    {
        std::filesystem::create_directories(m_charts);
        vorn::test::ListFolders(m_charts);
    }

    /// From here on the dialog is answered once it stands at the folder.
    void AnswerAt(const std::filesystem::path& folder, int button)
    {
        m_driver = std::make_unique<DialogDriver>(vorn::test::PressAt(folder, button));
    }

    /// From here on the dialog is looked at as soon as it is shown, and then cancelled.
    void CancelAfter(const Checks& checks)
    {
        m_driver = std::make_unique<DialogDriver>(
            [checks]
            {
                const auto dialog = vorn::test::ShellDialog::Shown();
                if (dialog)
                {
                    checks(dialog);
                    dialog.Press(IDCANCEL);
                }
                return static_cast<bool>(dialog);
            });
    }

    bool WasAnswered() const
    {
        return m_driver->IsDone();
    }

    vorn::test::ScratchFolder m_folder;
    const std::filesystem::path m_data = m_folder.Path() / "Data";
    const std::filesystem::path m_charts = m_data / "Charts";

private:
    std::unique_ptr<DialogDriver> m_driver;
};
