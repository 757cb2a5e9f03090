// Records for the tests, and what the package file says of them.
#pragma once

#include "core/ParamKeys.h"

#include <zorvane/TOParam.h>

#include <string>

/// A record in which every byte differs from its neighbours, reserved runs included.
TOParam PatternRecord();

/// The module's own copy of a record, known by its longest reserved run; null when there is none.
const TOParam* FindWorkingRecord(const TOParam& record);

enum class Sample
{
    First,
    Second,
};

/// A record in whose fields pages find nothing to mend: opened and confirmed, it comes back as it
/// was. The two samples together tell the fields of a page apart.
TOParam SampleRecord(Sample sample);

/// The row of the key table; an unknown key fails the test.
const ParamKey& KeyNamed(const std::string& key);

/// What save-all makes of a record where no file was before.
std::string FileOf(const TOParam& record, bool withLimitPrice = false);

/// A package file without the lines of the keys that pages write themselves.
std::string WithoutPageKeys(const std::string& file);

/// The lines in which two files differ, "expected | actual"; empty when they are equal.
std::string Differences(const std::string& expected, const std::string& actual);
