/* A program in C: 0 where the library does what it says. */
#include <stdio.h>
#include <string.h>

#include <ztfield.h>

static int faults;

static void Expect(const char* what, const char* actual, const char* expected)
{
    if (strcmp(actual, expected) == 0)
        return;
    printf("%s: [%s] and not [%s]\n", what, actual, expected);
    ++faults;
}

int main(void)
{
    ZTFieldSetup setup = {0};
    ZTFieldSettings* german = ZTF_CreateSettings();
    ZTField* amount;
    char text[64];

    if (ZTF_Version() != ZTFIELD_VERSION)
        return 2;
    ZTF_SetSetting(german, ZTF_DECIMAL, ",");
    ZTF_SetSetting(german, ZTF_THOUSANDS, ".");
    setup.mask = "#,###,##0.00";
    setup.dataType = DT_DECIMAL;
    setup.options = ZTEO_MODERN;
    setup.settings = german;
    amount = ZTF_Create(&setup);
    ZTF_DestroySettings(german);
    ZTF_Type(amount, "1234567,8");
    ZTF_GetText(amount, text, sizeof text);
    Expect("shown", text, "1.234.567,80");
    ZTF_GetDataString(amount, text, sizeof text);
    Expect("value", text, "1234567.80");
    ZTF_Destroy(amount);
    ZTF_Parse(NULL, "MM/DD/YYYY", DT_DATE, "4 July 2026", text, sizeof text, NULL);
    Expect("parsed", text, "2026-07-04");
    return faults;
}
