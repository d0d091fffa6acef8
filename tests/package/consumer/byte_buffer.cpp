#include "krm/core/binary.h"

int main() {
    CKRMBinary buffer;
    buffer.SetBuffer(new unsigned char[3]{1, 2, 3}, 3);
    unsigned char read[3] = {};
    return buffer.Read(read, 3) && read[2] == 3 && buffer.GetPos() == 3 ? 0 : 1;
}
