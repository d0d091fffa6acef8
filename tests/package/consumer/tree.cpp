#include "krm/tree/element.h"

int main() {
    CKRMCElement root("Root");
    root.RemoveAll();
    return root.GetKind() == krm::tree::kElementKind ? 0 : 1;
}
