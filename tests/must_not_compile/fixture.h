// A record with a field of every kind; each source beside it writes one line of its dump.
#ifndef KRM_TESTS_MUST_NOT_COMPILE_FIXTURE_H_
#define KRM_TESTS_MUST_NOT_COMPILE_FIXTURE_H_

#include "krm/framework/dump.h"
#include "krm/platform/platform.h"

class Part : public krm::RecordOf<Part> {
public:
    void Dump(const krm::RecordLines& line) { line("%s.m_ulId=%d", m_ulId); }

    krm_ulong m_ulId = 0;
    CKRMList<unsigned char> m_uchRaw;
};

class Sample : public krm::RecordOf<Sample> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulId = 0;
    krm_int64 m_llBig = 0;
    double m_dValue = 0;
    CKRMString m_strName;
    Part m_cPart;
    CKRMList<Part> m_cPartList;
    CKRMList<unsigned char> m_uchRaw;
};

#endif  // KRM_TESTS_MUST_NOT_COMPILE_FIXTURE_H_
