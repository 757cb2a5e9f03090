#include "tests/window/FactoryRecord.h"

#include "core/ParamKeys.h"

TOParam FactoryRecord()
{
    TOParam record = {};
    for (const ParamKey& key : ParamKeys())
        if (key.factory.read != DefaultRead::None)
            ParseParam(record, key, key.factory.text);
    record.SplitOrder[3] = record.SplitOrder[1];
    return record;
}
