// Writes the files that are made from the key table below the folder given: see tools/update-keys.sh.
#include "core/ParamKeysReport.h"

#include <cstdio>
#include <fstream>

int main(int count, char** arguments)
{
    if (count != 2)
    {
        fputs("usage: keys_report <root of the source tree>\n", stderr);
        return 2;
    }
    const std::string root = arguments[1];
    std::ofstream(root + "/host/files/Sys/Cfg/Trade/TradePackageConfig.ini", std::ios::binary)
        << PackagedFileText();
    std::ofstream(root + "/docs/keys.md", std::ios::binary) << KeysDocumentText();
}
