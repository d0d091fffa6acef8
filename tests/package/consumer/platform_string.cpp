#include "krm/platform/platform.h"

int main() {
    CKRMString text;
    text.Format("%s %d", "cylinder", 1);
    return text.Compare("cylinder 1") == 0 ? 0 : 1;
}
