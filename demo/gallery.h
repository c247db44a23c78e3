/* Ready fields of the laboratory, beside those of the form: masks of several countries, and some that do not fit. */
#ifndef DEMO_GALLERY_H
#define DEMO_GALLERY_H

#include "fields.h"

int GalleryCount(void);
const Field* GalleryField(int index);

#endif
