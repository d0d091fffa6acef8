// What run_gdb.py and run_lldb.py look at: one object of every kind and state, all of them there when Stop is called.
#include <cstddef>
#include <cstring>

#include "krm/core/binary.h"
#include "krm/core/error_codes.h"
#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/auxiliary/viewer.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/platform.h"
#include "krm/tree/attribute.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"

// Much is here for the debugger alone.
#pragma GCC diagnostic ignored "-Wunused-variable"

namespace {

/// A record of the program's own.
class PaintLayer : public krm::RecordOf<PaintLayer> {
public:
    void Dump(const krm::RecordLines&) {}

    unsigned short m_ushThickness = 20;
    CKRMString m_strColour = "grey";
};

/// A message of the program's own.
class PaintAnswer
    : public krm::MessageOf<PaintAnswer, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("ReadPaintCode", 900)> {
public:
    CKRMList<PaintLayer> m_cLayerList;
};

/// Memory in which no object has been constructed.
template <class T, unsigned char fill>
T* NotConstructed() {
    alignas(T) static unsigned char memory[sizeof(T)];
    std::memset(memory, fill, sizeof memory);
    return reinterpret_cast<T*>(memory);
}

/// The same with a readable address in every word, as a stack has them.
template <class T>
T* FullOfAddresses() {
    static void* words[sizeof(T) / sizeof(void*)];
    for (void*& word : words) {
        word = words;
    }
    return reinterpret_cast<T*>(words);
}

using Numbers = CKRMList<unsigned short>;
using Node = krm::ListNode<unsigned short>;

/// 10, 20, 30, 40; never destroyed, for some of these lists could not be.
Numbers* FourNumbers() {
    auto* const numbers = new Numbers;
    for (unsigned short number = 10; number <= 40; number = static_cast<unsigned short>(number + 10)) {
        numbers->AddTail(number);
    }
    return numbers;
}

Node* NodeAt(const Numbers* numbers, int index) {
    Node* node = Node::Of(numbers->GetHeadPosition());
    for (; index > 0; --index) {
        node = node->next;
    }
    return node;
}

/// Overwrites the number or pointer that lies at `offset` in an object.
template <class Member>
void SetAt(void* object, std::size_t offset, Member member) {
    std::memcpy(static_cast<char*>(object) + offset, &member, sizeof member);
}

void SetCount(Numbers* numbers, int count) {
    SetAt(numbers, sizeof(void*), count);
}

template <class T>
T* WildPointer() {
    T* wild = nullptr;
    std::memset(&wild, 0x5B, sizeof wild);
    return wild;
}

}  // namespace

/// What a debugger shows of a function's result, which has no place in memory that it knows.
__attribute__((noinline)) CKRMString MakeText() {
    return "made";
}

/// Where the debugger stops.
__attribute__((noinline)) void Stop() {
    asm volatile("");
}

int main() {
    // Texts.
    const CKRMString madeText = MakeText();
    CKRMString emptyText;
    CKRMString shortText("P0301");
    CKRMString quotedText("say \"ah\"\n");
    CKRMString longText;
    for (int i = 0; i < 30; ++i) {
        longText += "0123456789";
    }
    auto* const rawText = NotConstructed<CKRMString, 0xA5>();
    auto* const zeroText = NotConstructed<CKRMString, 0>();
    auto* const addressText = FullOfAddresses<CKRMString>();

    // Lists.
    Numbers noNumbers;
    Numbers oneNumber;
    oneNumber.AddTail(65);
    CKRMList<unsigned char> bytes;
    CKRMList<krm_ulong> words;
    CKRMList<CKRMString> texts;
    CKRMList<CKRMList<unsigned char>> nested;
    for (unsigned char number = 65; number < 68; ++number) {
        bytes.AddTail(number);
        words.AddTail(number * 1000000U);
        texts.AddTail("text");
        nested.AddTail(bytes);
    }
    CKRMListIterator<unsigned char> second(bytes.GetHeadPosition(), &bytes);
    ++second;
    CKRMListIterator<unsigned char> theEnd;
    CKRMList<int> million;
    for (int i = 0; i < 1000000; ++i) {
        million.AddTail(i);
    }
    auto* const rawList = NotConstructed<Numbers, 0xA5>();
    auto* const zeroList = NotConstructed<Numbers, 0>();
    auto* const addressList = FullOfAddresses<Numbers>();

    // Corrupt lists.
    Numbers* const cycle = FourNumbers();
    NodeAt(cycle, 2)->next = NodeAt(cycle, 1);
    Numbers* const wholeCycle = FourNumbers();
    NodeAt(wholeCycle, 3)->next = NodeAt(wholeCycle, 0);
    Numbers* const wildNext = FourNumbers();
    NodeAt(wildNext, 1)->next = WildPointer<Node>();
    Numbers* const wildHead = FourNumbers();
    SetAt(wildHead, 2 * sizeof(void*), WildPointer<Node>());
    Numbers* const countTooLow = FourNumbers();
    SetCount(countTooLow, 2);
    Numbers* const countTooHigh = FourNumbers();
    SetCount(countTooHigh, 5);
    Numbers* const negativeCount = FourNumbers();
    SetCount(negativeCount, -1);
    Numbers* const lostCount = FourNumbers();
    SetCount(lostCount, 0);
    auto* const lostNodes = new Numbers;
    SetCount(lostNodes, 4);
    Numbers* const lostTail = FourNumbers();
    SetAt<Node*>(lostTail, 3 * sizeof(void*), nullptr);

    // Records and messages.
    CKRMCCommandEcuData ecu;
    ecu.m_ulEcuId = 7;
    ecu.m_uchPhaseType = 65;
    ecu.m_strEcuName = "Engine";
    CKRMCCommandEcuGroupData group;
    group.m_strGroupName = "Power train";
    group.m_cEcuList.AddTail(ecu);
    CKRMCGetGroupEcuListCmdAdaptDataRcv answer;
    answer.Data.AddTail(group);
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 7;
    request.m_uchPhaseType = 1;
    const CKRMBaseAdaptationData* const untyped = &answer;
    CKRMCGetHelpInfoVdcAdptDataSnd viewerRequest;
    CKRMCBaseCmdAdaptDataSnd onlyTheBase(12);
    CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd withPlainStructure;
    withPlainStructure.Data.m_ulEOPData = 3;
    PaintAnswer paint;
    paint.m_cLayerList.AddTail(PaintLayer());
    const CKRMCBaseAdaptDataStructure* const anyRecord = &ecu;
    auto* const rawRecord = NotConstructed<CKRMCCommandEcuData, 0xA5>();
    auto* const zeroMessage = NotConstructed<CKRMCGetGroupEcuListCmdAdaptDataRcv, 0>();
    auto* const addressMessage = FullOfAddresses<CKRMCGetGroupEcuListCmdAdaptDataRcv>();

    // The tree.
    CKRMError noError;
    CKRMCElement vehicle("Vehicle");
    vehicle.CreateAttribute(&noError, "Vin")->SetValue(&noError, "W0L000000Y2000000");
    vehicle.CreateAttribute(&noError, "Mass")->SetValue(&noError, 1250.5);
    vehicle.CreateAttribute(&noError, "Offset")->SetValue(&noError, krm_long(-40));
    vehicle.CreateAttribute(&noError, "Doors")->SetValue(&noError, krm_ulong(5));
    vehicle.CreateAttribute(&noError, "Owner");
    for (krm_ulong id = 1; id <= 2; ++id) {
        vehicle.CreateElement(&noError, "Ecu")->CreateAttribute(&noError, "Id")->SetValue(&noError, id);
    }
    vehicle.CreateElementGroup(&noError, "Trailer");
    CKRMCElement bare("");
    const CKRMCElementGroup* const ecus = vehicle.GetElementGroup(&noError, "Ecu");
    const CKRMCAttribute* const vin = vehicle.GetFirstAttribute();
    const CKRMCNode* const anyNode = vin;
    auto* const wrongType = new CKRMCAttribute("Wrong");
    SetAt<krm_ulong>(wrongType, sizeof(CKRMCNode), 5);
    auto* const rawElement = NotConstructed<CKRMCElement, 0xA5>();
    auto* const zeroElement = NotConstructed<CKRMCElement, 0>();
    // A copy of its bytes: the parent of its children is another.
    CKRMCElement original("Strayed");
    original.CreateElement(&noError, "Child");
    auto* const strayed = NotConstructed<CKRMCElement, 1>();
    std::memcpy(static_cast<void*>(strayed), static_cast<const void*>(&original), sizeof original);
    // Behind the node lies what is the element's own, the first attribute first.
    auto* const wildAttribute = new CKRMCElement("Wild");
    SetAt(wildAttribute, sizeof(CKRMCNode), WildPointer<CKRMCAttribute>());

    // Bytes.
    CKRMBinary noBlock;
    noBlock.Write("abc", 3);
    CKRMBinary block;
    block.SetBuffer(new unsigned char[4]{0x01, 0x02, 0xAB, 0xFF}, 4);
    unsigned char read[3];
    block.Read(read, sizeof read);
    CKRMBinary longBlock;
    longBlock.CreateBuffer(300);
    for (int i = 0; i < 300; ++i) {
        longBlock.Write("\x7F", 1);
    }
    auto* const rawBlock = NotConstructed<CKRMBinary, 0xA5>();
    auto* const wildBlock = new CKRMBinary;
    wildBlock->SetBuffer(WildPointer<unsigned char>(), 16);

    // Errors.
    CKRMError error;
    error.SetError(2100100101, "module", "CKRMCElement", "RemoveAttribute", "", "no such attribute");
    CKRMError errors[8];
    errors[0].SetErrorCode(krm::kNullArgument);
    errors[1].SetErrorCode(krm::kOutOfMemory);
    errors[2].SetErrorCode(krm::kNoSuchAttribute);
    errors[3].SetErrorCode(krm::kNoSuchElement);
    errors[4].SetErrorCode(krm::kNoSuchGroup);
    errors[5].SetErrorCode(krm::kUnknownValueType);
    errors[6].SetErrorCode(krm::kDifferentTypes);
    errors[7].SetErrorCode(krm::kValueUnset);
    CKRMError ownCode;
    ownCode.SetErrorCode(42);
    auto* const rawError = NotConstructed<CKRMError, 0xA5>();

    Stop();
    return 0;
}
