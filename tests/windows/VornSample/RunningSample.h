#pragma once

#include "tests/support/ScratchFolder.h"
#include "tests/windows/VornSample/SampleProcess.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace vorn::test
{

/// The sample at work in a folder of the test's: run to its end, or started and spoken to.
class RunningSample : public testing::Test
{
protected:
    DWORD Run(const std::string& arguments)
    {
        const SampleProcess sample(arguments, m_folder.File("output.txt"));
        return sample.ExitCode();
    }

    void Open(const std::string& arguments)
    {
        constexpr int kView = 0xE900;
        m_sample = std::make_unique<SampleProcess>(arguments, m_folder.File("output.txt"));
        m_window = m_sample->MainWindow();
        ASSERT_NE(m_window, nullptr);
        m_view = GetDlgItem(m_window, kView);
    }

    void End()
    {
        PostMessageA(m_window, WM_CLOSE, 0, 0);
        EXPECT_EQ(m_sample->ExitCode(), 0u);
        m_sample.reset();
    }

    HWND Control(int id) const
    {
        return GetDlgItem(m_view, id);
    }

    static std::string TextOf(HWND window)
    {
        std::string text(4096, '\0');
        const LRESULT length =
            SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(text.size()), reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<std::size_t>(length));
        return text;
    }

    ScratchFolder m_folder;
    std::unique_ptr<SampleProcess> m_sample;
    HWND m_window = nullptr;
    HWND m_view = nullptr;
};

} // namespace vorn::test
