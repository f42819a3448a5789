#include "suite/export/XlsxBook.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <zlib.h>

namespace suite::exporting {

namespace {

// The local header of a part, its sizes included, as the library writes it.
struct Part {
    std::string name;
    std::uint32_t packed;
    std::uint32_t bytes;
};

std::uint32_t number(const char* bytes, int count) {
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return value;
}

// False behind the last part.
bool nextPart(std::istream& in, Part& part) {
    constexpr std::uint32_t Signature = 0x04034B50;
    std::array<char, 30> header{};
    if (!in.read(header.data(), header.size()) || number(header.data(), 4) != Signature)
        return false;
    part = {std::string(number(&header[26], 2), '\0'), number(&header[18], 4), number(&header[22], 4)};
    in.read(part.name.data(), static_cast<std::streamsize>(part.name.size()));
    in.seekg(number(&header[28], 2), std::ios::cur);
    return true;
}

// Whether the text of a part goes to the end tag of its root element.
class PartReader {
  public:
    PartReader() { inflateInit2(&stream_, -MAX_WBITS); }
    ~PartReader() { inflateEnd(&stream_); }
    PartReader(const PartReader&) = delete;
    PartReader& operator=(const PartReader&) = delete;

    bool isWhole(std::istream& in, const Part& part) {
        std::string packed(Chunk, '\0');
        int state = Z_OK;
        for (auto left = part.packed; left > 0 && state == Z_OK;) {
            const auto size = std::min<std::uint32_t>(left, Chunk);
            if (!in.read(packed.data(), size))
                return false;
            left -= size;
            stream_.next_in = reinterpret_cast<Bytef*>(packed.data());
            stream_.avail_in = size;
            do
                state = unpack();
            while (state == Z_OK && stream_.avail_out == 0);
            if (state == Z_BUF_ERROR) // it had given all before
                state = Z_OK;
        }
        const auto root = head_.find('<', head_.find("?>"));
        if (state != Z_STREAM_END || stream_.total_out != part.bytes || root == std::string::npos)
            return false;
        const auto name = head_.substr(root + 1, head_.find_first_of(" >", root) - root - 1);
        return tail_.find("</" + name + ">") != std::string::npos;
    }

  private:
    static constexpr std::uint32_t Chunk = 1U << 16;

    int unpack() {
        stream_.next_out = reinterpret_cast<Bytef*>(text_.data());
        stream_.avail_out = Chunk;
        const int state = inflate(&stream_, Z_NO_FLUSH);
        const auto got = std::string_view(text_).substr(0, Chunk - stream_.avail_out);
        if (head_.empty())
            head_ = got.substr(0, 512);
        tail_ += got.substr(got.size() - std::min<std::size_t>(got.size(), 64));
        tail_.erase(0, tail_.size() - std::min<std::size_t>(tail_.size(), 64));
        return state;
    }

    z_stream stream_{};
    std::string text_ = std::string(Chunk, '\0');
    std::string head_;
    std::string tail_;
};

} // namespace

bool isWholeXlsx(const std::filesystem::path& file, const std::vector<std::uint64_t>& sheets) {
    std::ifstream in(file, std::ios::binary);
    std::map<std::string, std::uint64_t> sizes;
    for (Part part{}; nextPart(in, part); sizes[part.name] = part.bytes)
        if (!PartReader().isWhole(in, part))
            return false;
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        const auto sheet = sizes.find("xl/worksheets/sheet" + std::to_string(i + 1) + ".xml");
        if (sheet == sizes.end() || sheet->second < sheets[i])
            return false;
    }
    return true;
}

} // namespace suite::exporting
