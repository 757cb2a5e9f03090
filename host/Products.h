// The products that the sample client hands to the module.
#pragma once

#include <vector>

/// A contract record as this client keeps it. The module reads the two codes only.
class CPtkContract
{
public:
    char exchange[12];
    char product[12];
    char rest[392]; // what a real client keeps beside the codes
};
static_assert(sizeof(CPtkContract) == 416, "the module steps 416 bytes");

/// Every futures product of the six exchanges and the contracts of the gold exchange.
std::vector<CPtkContract> AllProducts();
