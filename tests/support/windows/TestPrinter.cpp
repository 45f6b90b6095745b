#include "tests/support/TestPrinter.h"

#include <winspool.h>

namespace vorn::test
{

namespace
{
constexpr const char* kPrinterName = "Frame test printer";
constexpr const char* kDriverName = "Frame test PostScript";

/// The least that a PostScript printer description needs: one paper size, one resolution, one font.
constexpr const char* kDescription = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "FRAME.PPD"
*Manufacturer: "Test"
*Product: "(Test)"
*PSVersion: "(3010.000) 0"
*ModelName: "Test"
*ShortNickName: "Test"
*NickName: "Test"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*LandscapeOrientation: Plus90
*TTRasterizer: Type42
*DefaultResolution: 300dpi
*OpenUI *PageSize/Page Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 18 577 824"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*DefaultFont: Courier
*Font Courier: Standard "(002.004S)" Standard ROM
)ppd";
} // namespace

TestPrinter::TestPrinter()
{
    m_outputFile = m_folder.File("printed.ps");
    m_works = AddDriver() && AddPrinter();
    if (m_works)
    {
        HDC dc = CreateContext();
        m_works = dc && ::SetDefaultPrinterA(kPrinterName);
        ::DeleteDC(dc);
    }
}

TestPrinter::~TestPrinter()
{
    if (m_printer)
    {
        ::DeletePrinter(m_printer);
        ::ClosePrinter(m_printer);
    }
}

bool TestPrinter::AddDriver()
{
    std::string description = m_folder.Write("frame.ppd", kDescription);
    char system[MAX_PATH];
    ::GetSystemDirectoryA(system, MAX_PATH);
    std::string module = std::string(system) + "\\wineps.drv";
    std::string name = kDriverName;
    std::string environment = "Windows NT x86";
    std::string type = "RAW";
    DRIVER_INFO_3A driver{};
    driver.cVersion = 3;
    driver.pName = name.data();
    driver.pEnvironment = environment.data();
    driver.pDriverPath = module.data();
    driver.pConfigFile = module.data();
    driver.pDataFile = description.data();
    driver.pDefaultDataType = type.data();
    return ::AddPrinterDriverExA(nullptr, 3, reinterpret_cast<BYTE*>(&driver),
                                 APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY);
}

bool TestPrinter::AddPrinter()
{
    std::string name = kPrinterName;
    std::string driver = kDriverName;
    std::string processor = "WinPrint";
    std::string type = "RAW";
    PRINTER_INFO_2A printer{};
    printer.pPrinterName = name.data();
    printer.pDriverName = driver.data();
    printer.pPortName = m_outputFile.data();
    printer.pPrintProcessor = processor.data();
    printer.pDatatype = type.data();
    m_printer = ::AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
    return m_printer != nullptr;
}

HDC TestPrinter::CreateContext() const
{
    return ::CreateDCA("WINSPOOL", kPrinterName, nullptr, nullptr);
}

std::string TestPrinter::Output() const
{
    return m_folder.Read("printed.ps");
}

int TestPrinter::PageCount() const
{
    const std::string output = Output();
    const std::string mark = "%%Page: ";
    int count = 0;
    for (std::size_t at = output.find(mark); at != std::string::npos; at = output.find(mark, at + 1))
    {
        ++count;
    }
    return count;
}

} // namespace vorn::test
