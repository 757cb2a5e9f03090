#pragma once

/* Identifiers of the test dialogs; read by the resource compiler as well. */

#define IDD_SCROLL_PAGE 200

#define IDC_TOP_TEXT 2101
#define IDC_LOW_TEXT 2102
#define IDC_SLIDER 2103
