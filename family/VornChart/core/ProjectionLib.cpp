#include "family/VornChart/core/ProjectionLib.h"

#include <memory>
#include <new>

ProjectionLib* ProjectionLib::mpInstance = nullptr;

ProjectionLib::ProjectionLib() = default;
ProjectionLib::~ProjectionLib() = default;

bool ProjectionLib::Init(char** paths, int count)
{
    return mpInstance && mpInstance->sInit(paths, count);
}

void ProjectionLib::Deinit()
{
    if (const std::unique_ptr<ProjectionLib> ended{mpInstance})
    {
        ended->sDeinit();
    }
    mpInstance = nullptr;
}

Projection* ProjectionLib::CreateProjection(int index)
{
    return Projection::CreateProjection(index);
}

int ProjectionLib::NumProjections() const
{
    return static_cast<int>(mProjections.size());
}

int ProjectionLib::NumBuiltIn() const
{
    return mNumBuiltIn;
}

const char* ProjectionLib::ProjectionName(int index) const
{
    return index >= 0 && index < NumProjections() ? mProjections[static_cast<std::size_t>(index)].name.GetString()
                                                  : nullptr;
}

bool ProjectionLib::sInit(char**, int)
{
    mProjections.clear();
    for (int i = 0; i < PROJECTION_BUILT_IN_COUNT; ++i)
    {
        const std::unique_ptr<Projection> projection{Projection::CreateProjection(i)};
        if (!projection)
        {
            throw std::bad_alloc();
        }
        mProjections.push_back({projection->QueryProjectionName()});
    }
    mNumBuiltIn = PROJECTION_BUILT_IN_COUNT;
    return NumProjections() > 0;
}

void ProjectionLib::sDeinit()
{
    mProjections.clear();
    mNumBuiltIn = 0;
}
