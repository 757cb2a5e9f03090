#include "pages/OrderPriceList.h"

#include "core/OrderPriceTypes.h"
#include "skin/MyComboBox.h"

#include <zorvane/TOParam.h>

void FillOrderPrices(CMyComboBox_MyCtrl& combo, bool withQueuePlusOneTick)
{
    combo.ResetContent();
    for (size_t value = 0; value < kOrderPriceTypeCount; ++value)
    {
        if (OrderPriceTypes[value][0] == '\0')
            continue;
        if (value == InsertPriceQueuePlusOneTick && !withQueuePlusOneTick)
            continue;
        combo.AddString(OrderPriceTypes[value]);
        combo.SetItemData(combo.GetCount() - 1, static_cast<int>(value));
    }
}
