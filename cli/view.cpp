// krm view: the page that shows logs and recordings, with one or two of them inside.
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#if defined(KRM_HAVE_ZLIB)
#include <zlib.h>
#endif

#include "cli/byte_source.h"
#include "cli/embedded.h"
#include "cli/output_file.h"
#include "cli/patterns.h"
#include "cli/subcommands.h"
#include "cli/view_page.h"

namespace krm_cli {

std::string NameForPage(std::string_view name) {
    // As Latin-1 where it isn't UTF-8; control characters, and those that change directions, are escaped already.
    std::string json;
    AppendJson(Shown(name), json);
    std::string escaped;
    for (const char character : json) {
        switch (character) {
            case '<':
                escaped += "\\u003C";
                break;
            case '>':
                escaped += "\\u003E";
                break;
            case '&':
                escaped += "\\u0026";
                break;
            default:
                escaped += character;
        }
    }
    return escaped;
}

void Base64::Take(std::string_view bytes, std::string& out) {
    static constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (const char character : bytes) {
        m_bits = m_bits << 8U | static_cast<unsigned char>(character);
        if (++m_count == 3) {
            for (int shift = 18; shift >= 0; shift -= 6) {
                out += kLetters[(m_bits >> static_cast<unsigned>(shift)) & 0x3FU];
            }
            m_bits = 0;
            m_count = 0;
        }
    }
}

void Base64::End(std::string& out) {
    if (m_count == 0) {
        return;
    }
    const unsigned missing = 3 - m_count;
    Take(std::string(missing, '\0'), out);
    out.replace(out.size() - missing, missing, missing, '=');
}

namespace {

constexpr std::string_view kElement = R"(<script type="application/x-krm-data" id="krm-data">)";

#if defined(KRM_HAVE_ZLIB)
/// Packs bytes as gzip does, piece by piece.
class Packer {
public:
    static constexpr bool kPacks = true;

    Packer() : m_block(std::size_t{64} * 1024) {
        constexpr int kGzip = 15 + 16;
        constexpr int kMemory = 8;
        if (deflateInit2(&m_stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, kGzip, kMemory, Z_DEFAULT_STRATEGY) != Z_OK) {
            throw Failure("there is no memory to pack");
        }
    }
    ~Packer() { deflateEnd(&m_stream); }
    Packer(const Packer&) = delete;
    Packer& operator=(const Packer&) = delete;

    void Take(std::string_view bytes, const std::function<void(std::string_view)>& write) {
        Run(bytes, Z_NO_FLUSH, write);
    }
    void End(const std::function<void(std::string_view)>& write) { Run({}, Z_FINISH, write); }

private:
    void Run(std::string_view bytes, int flush, const std::function<void(std::string_view)>& write) {
        m_stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
        m_stream.avail_in = static_cast<uInt>(bytes.size());
        do {
            m_stream.next_out = reinterpret_cast<Bytef*>(m_block.data());
            m_stream.avail_out = static_cast<uInt>(m_block.size());
            deflate(&m_stream, flush);
            write(std::string_view(m_block.data(), m_block.size() - m_stream.avail_out));
        } while (m_stream.avail_out == 0);
    }

    z_stream m_stream{};
    std::vector<char> m_block;
};
#else
/// Without zlib the bytes stay as they are.
class Packer {
public:
    static constexpr bool kPacks = false;

    void Take(std::string_view bytes, const std::function<void(std::string_view)>& write) { write(bytes); }
    void End(const std::function<void(std::string_view)>&) {}
};
#endif

void WriteFile(const std::string& file, OutputFile& output, const Surroundings& surroundings) {
    ByteSource source(file, surroundings);
    output.Write(
        "{\"name\":" + NameForPage(file == "-" ? source.Name() : std::filesystem::path(file).filename().string()) +
        (Packer::kPacks ? ",\"gzip\":true" : ",\"gzip\":false") + ",\"base64\":\"");
    Base64 base64;
    std::string text;
    const auto write = [&](std::string_view bytes) {
        text.clear();
        base64.Take(bytes, text);
        output.Write(text);
    };
    Packer packer;
    std::vector<char> block(std::size_t{256} * 1024);
    while (const std::size_t count = source.Read(block.data(), block.size())) {
        packer.Take(std::string_view(block.data(), count), write);
    }
    packer.End(write);
    text.clear();
    base64.End(text);
    output.Write(text + "\"}");
}

}  // namespace

int RunView(const ViewOptions& options, const Surroundings& surroundings) {
    CheckStandardInput(options.file, options.file2);
    const std::string page = embedded::Whole(embedded::Viewer());
    const std::size_t element = page.find(kElement);
    if (element == std::string::npos) {
        throw Failure("this program was built without the page; it shows nothing");
    }
    const std::size_t split = element + kElement.size();
    constexpr std::size_t kTold = 256;
    OutputFile output(options.output, std::string_view(page).substr(0, std::min(kTold, element)), false, surroundings);
    output.Write(std::string_view(page).substr(0, split));
    output.Write("{\"files\":[");
    WriteFile(options.file, output, surroundings);
    if (!options.file2.empty()) {
        output.Write(",");
        WriteFile(options.file2, output, surroundings);
    }
    output.Write("]}");
    output.Write(std::string_view(page).substr(split));
    output.Complete();
    surroundings.out << "written to " << Shown(options.output) << "; open it in a browser" << std::endl;
    return kDone;
}

}  // namespace krm_cli
