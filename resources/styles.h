// Styles that the templates share. Combo boxes are owner-drawn from the start: the system fixes that
// when it makes them.
#pragma once

#define DROP_LIST                                                                                  \
    CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP
#define FIELD_EDIT ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP
#define NUMBER_EDIT FIELD_EDIT | ES_NUMBER
// A field without a spin button draws its own frame: a rich edit's border would be sunken.
#define PLAIN_NUMBER_EDIT ES_AUTOHSCROLL | ES_NUMBER | WS_TABSTOP
