#include "cli/field_store.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "cli/temporary_file.h"

namespace krm_cli {

void FieldStore::Clear() {
    m_bytes.clear();
    m_file.reset();
    m_inFile = 0;
}

void FieldStore::Add(const FieldText& field) {
    const Lengths lengths{field.path.size(), field.value.size(), field.line, field.cutBytes};
    m_bytes.append(reinterpret_cast<const char*>(&lengths), sizeof lengths);
    m_bytes += field.path;
    m_bytes += field.value;
    if (m_bytes.size() < m_mostInMemory) {
        return;
    }
    errno = 0;
    if (m_file == nullptr) {
        m_file.reset(OpenTemporary());
    }
    if (m_file == nullptr || std::fwrite(m_bytes.data(), 1, m_bytes.size(), m_file.get()) != m_bytes.size()) {
        throw Failure("a message of " + std::to_string(m_inFile + m_bytes.size()) +
                      " bytes needs a temporary file: " + ReasonOf(errno));
    }
    m_inFile += m_bytes.size();
    m_bytes.clear();
}

void FieldStore::Rewind() {
    m_fileLeft = m_inFile;
    m_read = 0;
    if (m_file != nullptr && (std::fflush(m_file.get()) != 0 || std::fseek(m_file.get(), 0, SEEK_SET) != 0)) {
        throw Failure("a temporary file: " + ReasonOf(errno));
    }
}

bool FieldStore::Take(void* to, std::size_t size) {
    if (m_fileLeft != 0) {
        if (std::fread(to, 1, size, m_file.get()) != size) {
            throw Failure("a temporary file cannot be read: " + ReasonOf(errno));
        }
        m_fileLeft -= size;
        return true;
    }
    if (m_read == m_bytes.size()) {
        return false;
    }
    std::memcpy(to, m_bytes.data() + m_read, size);
    m_read += size;
    return true;
}

bool FieldStore::Read(FieldText& field) {
    Lengths lengths{};
    if (!Take(&lengths, sizeof lengths)) {
        return false;
    }
    const std::size_t size = static_cast<std::size_t>(lengths.path + lengths.value);
    m_field.resize(size);
    if (size != 0) {
        Take(m_field.data(), size);
    }
    const std::string_view text = m_field;
    field = {text.substr(0, static_cast<std::size_t>(lengths.path)),
             text.substr(static_cast<std::size_t>(lengths.path)), lengths.line, lengths.cutBytes};
    return true;
}

}  // namespace krm_cli
