#include "apps/sample/ui/Theme.h"

Theme::Theme(int dotsPerInch) : m_dotsPerInch(dotsPerInch)
{
    windowBrush.CreateSolidBrush(window);
    MakeFont(title, 17, FW_SEMIBOLD);
    MakeFont(heading, 11, FW_SEMIBOLD);
    MakeFont(body, 9, FW_NORMAL);
    MakeFont(bold, 9, FW_SEMIBOLD);
    MakeFont(note, 8, FW_NORMAL);
}

int Theme::Px(int at96) const
{
    return MulDiv(at96, m_dotsPerInch, 96);
}

void Theme::MakeFont(CFont& font, int points, int weight) const
{
    LOGFONT record{};
    record.lfHeight = -MulDiv(points, m_dotsPerInch, 72);
    record.lfWeight = weight;
    record.lfCharSet = ANSI_CHARSET;
    record.lfQuality = CLEARTYPE_QUALITY;
    record.lfPitchAndFamily = VARIABLE_PITCH | FF_SWISS;
    lstrcpynA(record.lfFaceName, "Segoe UI", LF_FACESIZE);
    font.CreateFontIndirect(&record);
}
