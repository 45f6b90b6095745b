#include "family/TarnUtil/core/SynchObject.h"

namespace Vornwald
{

bool SynchObject::TryLock(int)
{
    return false;
}

SynchObject::~SynchObject() = default;

} // namespace Vornwald
