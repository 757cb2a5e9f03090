#include "core/WorkingParam.h"

#include <cstring>

TOParam& WorkingParam()
{
    static TOParam record;
    return record;
}

void CopyToWorkingParam(const TOParam& record)
{
    memcpy(&WorkingParam(), &record, sizeof(TOParam));
}
