// Writes the files that are made from the key table below the folder given: see tools/update-keys.sh.
#include "core/ParamKeysReport.h"

#include <cstdio>
#include <fstream>
#include <iterator>

int main(int count, char** arguments)
{
    if (count != 2)
    {
        fputs("usage: keys_report <root of the source tree>\n", stderr);
        return 2;
    }
    const std::string root = arguments[1];
    std::ifstream header(root + "/include/zorvane/TOParam.h", std::ios::binary);
    const std::string headerText(std::istreambuf_iterator<char>(header), {});
    std::ofstream(root + "/host/files/Sys/Cfg/Trade/TradePackageConfig.ini", std::ios::binary)
        << PackagedFileText();
    std::ofstream(root + "/docs/keys.md", std::ios::binary) << KeysDocumentText(headerText);
}
