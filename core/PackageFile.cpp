#include "core/PackageFile.h"

#include "core/HostHooks.h"
#include "core/ParamKeys.h"
#include "iniwarden/IniWarden.h"

#include <cstdlib>

const char kPackageFile[] = "Cfg\\Trade\\TradePackageConfig.ini";
const char kPackageSection[] = "TradeConfig";

void SaveAllParams(const TOParam& record)
{
    for (const StoredText& stored : StoredTexts(record, GetSpecialUI(SpecialUILimitPrice)))
        IniWarden::WriteConfig(kPackageSection, stored.key, stored.text, kPackageFile);
}

void StorePackageKey(const char* key, const std::string& text)
{
    IniWarden::WriteConfig(kPackageSection, key, text, kPackageFile);
}

int UserInt(const char* key)
{
    return IniWarden::ReadConfigIntWithDefault(kPackageSection, key, atoi(FactoryDefault(key).text),
                                               kPackageFile);
}

std::string UserText(const char* key)
{
    return IniWarden::ReadConfigWithDefault(kPackageSection, key, FactoryDefault(key).text,
                                            kPackageFile);
}

int PackagedInt(const std::string& key)
{
    return IniWarden::ReadSysConfigIntWithDefault(kPackageSection, key,
                                                  atoi(FactoryDefault(key).text), kPackageFile);
}

std::string PackagedText(const std::string& key)
{
    return IniWarden::ReadSysConfigWithDefault(kPackageSection, key, FactoryDefault(key).text,
                                               kPackageFile);
}

double PackagedReal(const std::string& key)
{
    return IniWarden::ReadSysConfigFloatWithDefault(kPackageSection, key,
                                                    atof(FactoryDefault(key).text), kPackageFile);
}
