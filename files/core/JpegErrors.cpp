#include "files/core/JpegErrors.h"

namespace vorn
{
namespace
{
void IgnoreMessage(j_common_ptr, int)
{
}

void PrintNothing(j_common_ptr)
{
}
} // namespace

JpegErrors::JpegErrors()
{
    jpeg_std_error(&manager);
    manager.error_exit = LeaveJpeg;
    manager.emit_message = IgnoreMessage;
    manager.output_message = PrintNothing;
}

void LeaveJpeg(j_common_ptr codec)
{
    std::longjmp(reinterpret_cast<JpegErrors*>(codec->err)->failed, 1);
}
} // namespace vorn
