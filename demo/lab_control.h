/* The control of the laboratory: configured, followed, and heard. */
#ifndef DEMO_LAB_CONTROL_H
#define DEMO_LAB_CONTROL_H

#include "lab_state.h"

/* Anew, with all that stands in the window; the value is kept, or with another type dropped. */
void Configure(void);
void ChangeType(void);
void SetAutoskip(void);
void SetValue(void);

/* Selects the character of the mask that does not fit, which is seen also without the focus; in a mask that fits nothing. */
void MarkFault(void);

/* The mask is not what ZTE_CheckMask wants and is in force: a modern control takes a number's in '.' and ',' under all settings. */
BOOL IsTakenAllTheSame(void);

/* After something has happened to the control: tells what it shows and reads. */
void FollowLive(void);

/* Its notifications, for the list. */
void NoteChange(void);
void NoteFull(void);
void OnNotify(const NMHDR* header);
void EmptyList(void);

#endif
