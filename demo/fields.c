/* The fields of the demo form, in tab order. */
#include "fields.h"

#define PICK_LIST (ZTEO_SPIN | ZTEO_CODE_PICK | ZTEO_CODE_DISPLAY)

// clang-format off
const Field kFields[] = {
    {"date",       "Date",              "MM/DD/YY",               DT_DATE,     NULL,    0,         0, NULL,     NULL},
    {"dated",      "Date with month",   "DD-MMM-YYYY",            DT_DATE,     NULL,    0,         0, NULL,     NULL},
    {"dayofyear",  "Day of the year",   "JJJ/YYYY",               DT_DATE,     NULL,    0,         0, NULL,     NULL},
    {"time",       "Time",              "HH:MM:SS:FFF",           DT_TIME,     NULL,    0,         0, NULL,     NULL},
    {"time12",     "12-hour time",      "HH:MM AM/PM",            DT_TIME,     NULL,    0,         0, NULL,     NULL},
    {"datetime",   "Date and time",     "YYYY-MM-DD HH:MM",       DT_DATETIME, NULL,    0,         0, NULL,     NULL},
    {"regdate",    "Regional date",     "[date]",                 DT_DATE,     NULL,    0,         0, NULL,     NULL},
    {"regtime",    "Regional time",     "[time]",                 DT_TIME,     NULL,    0,         0, NULL,     NULL},
    {"phone",      "Phone",             "~(###~) ###-#### ~X###", DT_STRING,   NULL,    0,         0, NULL,     NULL},
    {"code",       "Order code",        "!!-!!!!",                DT_STRING,   NULL,    0,         0, NULL,     NULL},
    {"number",     "Number",            "#,#.00",                 DT_NUMBER,   NULL,    0,         0, NULL,     NULL},
    {"percent",    "Percentage",        "#,##0.00%",              DT_NUMBER,   NULL,    0,         0, NULL,     NULL},
    {"currency",   "Amount",            "[currency(9)]",          DT_NUMBER,   NULL,    0,         0, NULL,     NULL},
    {"decimal",    "Exact decimal",     "#,###,###,##0.0000",     DT_DECIMAL,  NULL,    0,         0, NULL,     NULL},
    {"pick", "Pick list", "", DT_STRING, "G", PICK_LIST, 1, NULL, "Red\tR/Green\tG/Grey\tY/Blue\tB"},
    {"spinnumber", "Spin number",       "##0",                    DT_NUMBER,   "10",    ZTEO_SPIN, 5, "0~100",  NULL},
    {"spindec",    "Spin decimal",      "#,##0.00",               DT_DECIMAL,  "19.90", ZTEO_SPIN, 1, "0~1000", NULL},
    {"spindate",   "Spin date (2026)",  "MM/DD/YYYY",             DT_DATE,     "2026-12-30", ZTEO_SPIN, 1, "2026-01-01~2026-12-31", NULL},
    {"spintime",   "Spin 12-hour time", "HH:MM AM/PM",            DT_TIME,     "11:30", ZTEO_SPIN, 1, NULL,     NULL},
    {"spincode", "Weekday", "", DT_STRING, "1", ZTEO_SPIN | ZTEO_CODE_DISPLAY, 1, NULL,
     "Monday\t1/Tuesday\t2/Wednesday\t3/Thursday\t4/Friday\t5"},
};
// clang-format on

const int kFieldCount = sizeof kFields / sizeof kFields[0];
