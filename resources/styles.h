// Styles that the templates share. Combo boxes are owner-drawn from the start: the system fixes that
// when it makes them.
#pragma once

#define DROP_LIST                                                                                  \
    CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP
#define FIELD_EDIT ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP
#define NUMBER_EDIT FIELD_EDIT | ES_NUMBER
