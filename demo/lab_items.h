/* What stands in the laboratory's window, in tab order, and where. */
#ifndef DEMO_LAB_ITEMS_H
#define DEMO_LAB_ITEMS_H

#include <windows.h>

typedef enum LabItem {
    ITEM_CONTROL_GROUP,
    ITEM_GALLERY,
    ITEM_MASK,
    ITEM_VERDICT,
    ITEM_TYPE,
    ITEM_MODERN,
    ITEM_AUTOSKIP,
    ITEM_SPIN,
    ITEM_INCREMENT,
    ITEM_RANGE,
    ITEM_TABLE,
    ITEM_PICK,
    ITEM_DISPLAY,
    ITEM_VALUE,
    ITEM_SET,
    ITEM_SETTINGS_GROUP,
    ITEM_COUNTRY,
    ITEM_SETTING, /* the first of PROFILE_KEYS */
    ITEM_LAST_SETTING = ITEM_SETTING + 8,
    ITEM_LIVE_GROUP,
    ITEM_LIVE,
    ITEM_TEXT,
    ITEM_STATE,
    ITEM_DATA_STRING,
    ITEM_DATA,
    ITEM_PROBLEM,
    ITEM_LIST_GROUP,
    ITEM_LIST,
    ITEM_EMPTY,
    ITEM_COUNT
} LabItem;

enum { FIRST_LAB_ID = 100 };

/* Creates them all in the window, and places them for its size. */
void CreateItems(HWND window);
void PlaceItems(HWND window);
void DeleteItemFonts(void);

/* The client size below which the window does not become. */
SIZE SmallestLab(void);

HWND ItemWindow(HWND window, LabItem item);

/* For scripts: the names of the items. */
const char* ItemName(LabItem item);

#endif
