// What is made from the key table must say what the table says.
#include "core/ParamKeysReport.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace
{

std::string Committed(const std::string& path)
{
    std::ifstream file(std::string(ZORVANE_SOURCE_DIR) + "/" + path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

} // namespace

TEST(GeneratedFiles, PackagedDefaults)
{
    EXPECT_EQ(PackagedFileText(), Committed("host/files/Sys/Cfg/Trade/TradePackageConfig.ini"))
        << "run tools/update-keys.sh";
}

TEST(GeneratedFiles, ListOfKeys)
{
    EXPECT_EQ(KeysDocumentText(Committed("include/zorvane/TOParam.h")), Committed("docs/keys.md"))
        << "run tools/update-keys.sh";
}
