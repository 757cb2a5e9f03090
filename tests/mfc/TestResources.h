#pragma once

/* Identifiers of the test resources; read by the resource compiler as well. */

#define IDD_PLAIN 100
#define IDD_ITEMS 101
#define IDD_KEYS 102
#define IDD_CHILD 103
#define IDD_RICH 104
#define IDD_OWNER_DRAW 105
#define IDD_BROKEN_ITEMS 106
#define IDD_MULTILINE 107

#define IDC_COMBO 1001
#define IDC_LIST 1002
#define IDC_FIRST 1003
#define IDC_SECOND 1004
#define IDC_THIRD 1005
#define IDC_TEXT 1006
#define IDC_NUMBER 1007
#define IDC_CHECK 1008
#define IDC_RADIO_A 1009
#define IDC_RADIO_B 1010
#define IDC_RICH 1011
#define IDC_BUTTON 1012

#define IDS_HELLO 2001
#define IDS_FORMAT 2002
#define IDB_SMALL 2003
