/* Ready fields of the laboratory, beside those of the form. */
#include "gallery.h"

// clang-format off
static const Field kMore[] = {
    {"iban",    "Bank account (Germany)",        "!!## #### #### #### #### ##", DT_STRING, NULL, 0, 0, NULL, NULL},
    {"ukpost",  "Postcode (United Kingdom)",     "!!## #!!",           DT_STRING,   NULL,    0,         0, NULL,    NULL},
    {"zip",     "ZIP+4 (United States)",         "#####-####",         DT_STRING,   "90210", 0,         0, NULL,    NULL},
    {"frphone", "Phone (France)",                "## ## ## ## ##",     DT_STRING,   NULL,    0,         0, NULL,    NULL},
    {"literal", "Code with literal letters",     "~A~X-###",           DT_STRING,   NULL,    0,         0, NULL,    NULL},
    {"mail",    "Lower case",                    "^^^^^^^^",           DT_STRING,   NULL,    0,         0, NULL,    NULL},
    {"quarter", "Hours and minutes by quarters", "HH:MM",              DT_TIME,     "08:00", ZTEO_SPIN, 15, "08:00~18:00", NULL},
    {"room",    "Room number",                   "000",                DT_NUMBER,   "101",   ZTEO_SPIN, 1, "101~420", NULL},
    {"noyear",  "Does not fit: no year",         "MM/DD",              DT_DATE,     NULL,    0,         0, NULL,    NULL},
    {"twice",   "Does not fit: two points",      "#,##0.00.0",         DT_NUMBER,   NULL,    0,         0, NULL,    NULL},
    {"tilde",   "Does not fit: ~ at the end",    "###~",               DT_STRING,   NULL,    0,         0, NULL,    NULL},
};
// clang-format on

int GalleryCount(void)
{
    return kFieldCount + (int)(sizeof kMore / sizeof kMore[0]);
}

const Field* GalleryField(int index)
{
    return index < kFieldCount ? &kFields[index] : &kMore[index - kFieldCount];
}
