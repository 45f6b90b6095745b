#include "framework/core/DialogInit.h"
#include "framework/core/DialogTemplate.h"

#include <cstddef>
#include <cstdint>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::span bytes(data, size);
    static_cast<void>(vorn::ReadDialogTemplate(bytes));
    static_cast<void>(vorn::ReadDialogInit(bytes));
    return 0;
}
