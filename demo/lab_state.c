/* What the laboratory remembers, and its items read and written. */
#include "lab_state.h"

#include <string.h>

Lab lab;

HWND At(LabItem item)
{
    return ItemWindow(lab.window, item);
}

void Read(LabItem item, char* text, int size)
{
    GetWindowTextA(At(item), text, size);
}

UINT ReadNumber(LabItem item)
{
    return GetDlgItemInt(lab.window, FIRST_LAB_ID + (int)item, NULL, FALSE);
}

void Tell(LabItem item, const char* text)
{
    char former[TEXT_ROOM];
    Read(item, former, sizeof former);
    if (strcmp(former, text) != 0)
        SetWindowTextA(At(item), text);
}

void Fill(LabItem item, const char* text)
{
    lab.filling = TRUE;
    SetWindowTextA(At(item), text ? text : "");
    lab.filling = FALSE;
}

BOOL IsChecked(LabItem item)
{
    return SendMessageA(At(item), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void Check(LabItem item, BOOL on)
{
    SendMessageA(At(item), BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
}

int Chosen(LabItem item)
{
    return (int)SendMessageA(At(item), CB_GETCURSEL, 0, 0);
}

void Choose(LabItem item, int index)
{
    SendMessageA(At(item), CB_SETCURSEL, (WPARAM)index, 0);
}

void AddChoice(LabItem item, const char* text)
{
    SendMessageA(At(item), CB_ADDSTRING, 0, (LPARAM)text);
}
