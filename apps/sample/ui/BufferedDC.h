#pragma once

#include <VornCommon.h>

/// Draws into memory and copies the finished picture to the device when it goes out of scope, so that nothing
/// flickers. Coordinates are those of the device.
class BufferedDC
{
public:
    BufferedDC(CDC& device, const CRect& area);
    ~BufferedDC();
    BufferedDC(const BufferedDC&) = delete;
    BufferedDC& operator=(const BufferedDC&) = delete;

    /// The context to draw with: the memory one, or the device itself when there is no memory for it.
    CDC& Get();

private:
    CDC& m_device;
    CRect m_area;
    CDC m_memory;
    CBitmap m_bitmap;
    CBitmap* m_before = nullptr;
};
