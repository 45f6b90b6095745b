#ifdef VORN_HAVE_SHAPELIB
#include "bench/core/Shapelib.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace
{

FILE* FileOf(SAFile file)
{
    return reinterpret_cast<FILE*>(file);
}

SAFile Open(const char* name, const char* access)
{
    return reinterpret_cast<SAFile>(std::fopen(name, access));
}

SAOffset Read(void* bytes, SAOffset size, SAOffset count, SAFile file)
{
    return static_cast<SAOffset>(std::fread(bytes, size, count, FileOf(file)));
}

SAOffset Write(void* bytes, SAOffset size, SAOffset count, SAFile file)
{
    return static_cast<SAOffset>(std::fwrite(bytes, size, count, FileOf(file)));
}

SAOffset Seek(SAFile file, SAOffset offset, int whence)
{
    return static_cast<SAOffset>(std::fseek(FileOf(file), static_cast<long>(offset), whence));
}

SAOffset Tell(SAFile file)
{
    return static_cast<SAOffset>(std::ftell(FileOf(file)));
}

int Flush(SAFile file)
{
    return std::fflush(FileOf(file));
}

int Close(SAFile file)
{
    return std::fclose(FileOf(file));
}

void Report(const char* message)
{
    std::fprintf(stderr, "%s\n", message);
}

} // namespace

// The part of shapelib with its files is not built, only its tables; the names are its own.
void SASetupDefaultHooks(SAHooks* hooks)
{
    *hooks = {Open, Read, Write, Seek, Tell, Flush, Close, std::remove, Report, std::atof};
}

namespace vorn::bench
{

ShapelibTable::ShapelibTable(const char* path) : m_table(DBFOpen(path, "rb"))
{
    if (m_table == nullptr)
    {
        throw std::runtime_error("shapelib does not open the table");
    }
}

ShapelibTable::~ShapelibTable()
{
    DBFClose(m_table);
}

} // namespace vorn::bench
#endif
