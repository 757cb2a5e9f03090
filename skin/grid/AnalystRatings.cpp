#include "skin/grid/AnalystRatings.h"

const std::map<std::string, int> kAnalystRatings = {
    {"买入", 5}, {"增持", 4}, {"观望", 3}, {"减持", 2}, {"卖出", 1},
};
