#include "host/Products.h"

#include <cstring>

namespace
{

struct Exchange
{
    const char* code;
    std::vector<const char*> products;
};

const Exchange kExchanges[] = {
    {"SHFE", {"cu", "al", "zn", "pb", "ni", "sn", "ao", "ad", "au", "ag",
              "rb", "wr", "hc", "ss", "fu", "bu", "br", "ru", "sp", "op"}},
    {"DCE", {"c", "cs", "a",  "b", "m",  "y", "p",  "fb", "bb", "jd", "rr", "lg",
             "l", "v",  "pp", "j", "jm", "i", "eg", "eb", "pg", "lh", "bz"}},
    {"CZCE", {"WH", "PM", "CF", "SR", "OI", "RI", "RS", "RM", "JR", "LR", "CY", "AP", "CJ", "TA",
              "MA", "FG", "ZC", "SF", "SM", "UR", "SA", "PF", "PK", "SH", "PX", "PR", "PL"}},
    {"CFFEX", {"IF", "IC", "IH", "IM", "TS", "TF", "T", "TL"}},
    {"INE", {"sc", "lu", "nr", "bc", "ec"}},
    {"GFEX", {"si", "lc", "ps", "pt", "pd"}},
    {"SGE",
     {"Au(T+D)", "mAu(T+D)", "Ag(T+D)", "Au(T+N1)", "Au(T+N2)", "Au99.99", "Au99.95", "Au100g",
      "Pt99.95", "Ag99.99"}},
};

CPtkContract MakeContract(const char* exchange, const char* product)
{
    CPtkContract contract = {};
    strncpy(contract.exchange, exchange, sizeof(contract.exchange) - 1);
    strncpy(contract.product, product, sizeof(contract.product) - 1);
    return contract;
}

} // namespace

std::vector<CPtkContract> AllProducts()
{
    std::vector<CPtkContract> contracts;
    for (const Exchange& exchange : kExchanges)
        for (const char* product : exchange.products)
            contracts.push_back(MakeContract(exchange.code, product));
    return contracts;
}
