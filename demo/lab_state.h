/* What the laboratory remembers, and its items read and written. */
#ifndef DEMO_LAB_STATE_H
#define DEMO_LAB_STATE_H

#include "lab_items.h"
#include "ztedit.h"

enum { TEXT_ROOM = 600 }; /* of any text in the window */

typedef struct Lab {
    HWND window;
    HWND live;
    SharedHeap heap;
    char value[TEXT_ROOM]; /* of the control, canonical: what is shown again when it has been configured anew */
    int32_t verdict;       /* of ZTE_CheckMask, and where */
    int32_t position;
    BOOL touched; /* the user has changed the text: the value is another one */
    BOOL filling; /* the window itself writes into its items: nobody has changed anything */
} Lab;

extern Lab lab;

HWND At(LabItem item);
void Read(LabItem item, char* text, int size);
UINT ReadNumber(LabItem item);

/* Tell writes only what differs: what has not changed does not flicker, and is not read out again. Fill makes nobody believe that the user
 * has typed it. */
void Tell(LabItem item, const char* text);
void Fill(LabItem item, const char* text);

BOOL IsChecked(LabItem item);
void Check(LabItem item, BOOL on);
int Chosen(LabItem item);
void Choose(LabItem item, int index);
void AddChoice(LabItem item, const char* text);

#endif
