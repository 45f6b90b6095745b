#pragma once

/// @file
/// What libjpeg does about errors: it leaves the reading or writing, without a word.
#include "framework/core/BaseTypes.h" // before jpeglib.h, which defines TRUE and FALSE as macros

#include <csetjmp>
#include <cstddef>
#include <cstdio>

#include <jpeglib.h>

namespace vorn
{
/// An error manager, and where it jumps. Nothing with a destructor may live between the jump and its target.
struct JpegErrors
{
    jpeg_error_mgr manager{}; ///< First: libjpeg knows only this part.
    std::jmp_buf failed;

    /// Warnings are passed over.
    JpegErrors();
};

/// Jumps out of libjpeg.
[[noreturn]] void LeaveJpeg(j_common_ptr codec);
} // namespace vorn
