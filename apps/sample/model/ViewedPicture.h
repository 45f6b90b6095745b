#pragma once

#include "apps/sample/core/ReportTable.h"

#include <VornCommon.h>

#include <memory>
#include <string>

/// The picture that the viewer shows, and where it came from.
class ViewedPicture
{
public:
    /// Reads a file of any kind that the library reads; of a GIF file the first image. What is wrong; empty when
    /// nothing is, and else the picture stays as it was.
    std::string Open(const std::string& path);
    /// Shows the sample's own picture.
    void TakeSample();

    /// Another image of the same file, from 0. False when it cannot be read.
    bool ShowImage(int number);
    int ImageNumber() const;
    int ImageCount() const;

    /// Turns clockwise; the picture grows to hold everything.
    bool Rotate(double degrees);
    /// @param byArea averages by area; else the system stretches
    bool Resize(int width, int height, bool byArea);
    /// As PNG, JPEG or BMP, by the name's ending. What is wrong; empty when nothing is.
    std::string Save(const std::string& path) const;

    bool IsEmpty() const;
    const std::string& Path() const;
    /// The file's name without its folder, or what stands for it.
    std::string Name() const;
    int Width() const;
    int Height() const;
    /// In 24 bits, or in 32 where the fourth byte tells how far a pixel covers what is behind it. Another object after
    /// each change.
    const DIB& Shown() const;
    vorn::ReportTable Facts() const;

private:
    /// With the index of a transparent colour, or -1. False, and no change, without the memory to show it.
    bool Take(std::unique_ptr<DIB> picture, int transparent);
    std::string DepthWords() const;
    std::string TransparencyWords() const;

    std::string m_path;
    std::string m_format;
    std::string m_changes; // since it was read
    std::unique_ptr<DIB> m_picture = std::make_unique<DIB>();
    std::unique_ptr<DIB> m_shown = std::make_unique<DIB>();
    bool m_hasAlpha = false;
    int m_transparent = -1; // the index
    int m_images = 1;
    int m_image = 0;
    std::uint64_t m_fileSize = 0;
};
