// Lays out every class of the library, so that check.py can read from the compiler where slots and fields are. Exported
// classes get their virtual tables here, being built; the others by being used.
#include "krm/adaptation_data.h"
#include "krm/framework/dump.h"
#include "tests/support/all_classes.h"

#define KRM_LAID_OUT(Class, ...)                                               \
    static_assert(sizeof(Class) != 0 && sizeof(CKRMList<Class>) != 0, #Class); \
    void MakeListOf##Class() {                                                 \
        CKRMList<Class> list;                                                  \
    }
KRM_ALL_MESSAGES(KRM_LAID_OUT)
KRM_ALL_LIST_ELEMENTS(KRM_LAID_OUT)
#undef KRM_LAID_OUT
static_assert(sizeof(CKRMCNode) != 0 && sizeof(CKRMCAttribute) != 0 && sizeof(CKRMCElement) != 0 &&
              sizeof(CKRMCElementGroup) != 0);
