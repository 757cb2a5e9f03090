// The default order prices as a list to pick from.
#pragma once

class CMyComboBox_MyCtrl;

/// Fills a combo box with the named order prices, each with its value as data.
/// @param withQueuePlusOneTick whether "挂单价超一个价位" is offered
void FillOrderPrices(CMyComboBox_MyCtrl& combo, bool withQueuePlusOneTick);
