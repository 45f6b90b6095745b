#include "apps/sample/ui/BufferedDC.h"

BufferedDC::BufferedDC(CDC& device, const CRect& area) : m_device(device), m_area(area)
{
    if (!m_bitmap.CreateCompatibleBitmap(&device, area.Width(), area.Height()) || !m_memory.CreateCompatibleDC(&device))
        return;
    m_before = m_memory.SelectObject(&m_bitmap);
    m_memory.SetViewportOrg(-area.left, -area.top);
}

BufferedDC::~BufferedDC()
{
    if (m_before == nullptr)
        return;
    m_device.BitBlt(m_area.left, m_area.top, m_area.Width(), m_area.Height(), &m_memory, m_area.left, m_area.top,
                    SRCCOPY);
    m_memory.SelectObject(m_before);
}

CDC& BufferedDC::Get()
{
    return m_before == nullptr ? m_device : m_memory;
}
