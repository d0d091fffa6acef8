#include "krm/core/list.h"

// A list of the user's own, of which the library has no instantiation.
int main() {
    CKRMList<int> numbers;
    numbers.AddTail(7);
    int sum = 0;
    for (const int number : numbers) {
        sum += number;
    }
    return sum == 7 && numbers.GetCount() == 1 ? 0 : 1;
}
