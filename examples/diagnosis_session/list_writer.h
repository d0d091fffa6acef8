// Lists of messages that are filled again and again.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_LIST_WRITER_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_LIST_WRITER_H_

#include "krm/core/list.h"

namespace diagnosis_session {

/// Writes a list from its head, in the elements that it has already: a list that is as long as before takes no memory. What
/// is left behind the last element written goes when the writer does.
template <class Record>
class ListWriter {
public:
    explicit ListWriter(CKRMList<Record>& list) : m_list(list), m_next(list.GetHeadPosition()) {}
    ~ListWriter() {
        while (m_list.GetCount() > m_count) {
            m_list.RemoveAt(m_count);
        }
    }
    ListWriter(const ListWriter&) = delete;
    ListWriter& operator=(const ListWriter&) = delete;

    /// The next element, made a copy of `record`.
    Record& Put(const Record& record) {
        return Put(record, [](const Record&) { return false; });
    }
    /// The same, but one of which `keep` is true stays as it was written the last time.
    template <class Keep>
    Record& Put(const Record& record, Keep keep) {
        ++m_count;
        if (m_next == nullptr) {
            return *CKRMListIterator<Record>(m_list.AddTail(record));
        }
        Record& there = m_list.GetNext(m_next);
        if (!keep(there)) {
            there = record;
        }
        return there;
    }

private:
    CKRMList<Record>& m_list;
    _SKRMPOSITION* m_next;
    int m_count = 0;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_LIST_WRITER_H_
