#include "suite/program/LayoutStore.h"

#include "base/ArquivoInteiro.h"
#include "base/Falhas.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <optional>
#include <sstream>
#include <system_error>

namespace suite::program {

namespace {

using std::filesystem::path;

constexpr const char* Ending = ".leiaute";
constexpr const char* Heading = "orcreal-leiaute";
constexpr std::size_t LongestFileName = 200; // leaves room for the endings

bool plain(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_' ||
           c == '{' || c == '}';
}

// Any name as a file name, and back; nothing for a file name that is not one of ours.
std::string encoded(const std::string& name) {
    constexpr const char* digits = "0123456789ABCDEF";
    std::string text;
    for (char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        text += plain(c) ? std::string(1, c) : std::string{'%', digits[byte / 16], digits[byte % 16]};
    }
    return text;
}

std::optional<std::string> decoded(const std::string& text) {
    std::string name;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            name += text[i];
            continue;
        }
        unsigned byte = 0;
        const char* const first = text.data() + i + 1;
        if (i + 2 >= text.size() || std::from_chars(first, first + 2, byte, 16).ptr != first + 2)
            return std::nullopt;
        name += static_cast<char>(byte);
        i += 2;
    }
    return encoded(name) == text ? std::optional(name) : std::nullopt;
}

std::string textOf(const host::TLeiaute& layout) {
    std::ostringstream text;
    text << Heading << ' ' << layout.Versao << '\n';
    for (const auto& column : layout.Colunas) {
        text << column.Campo << (column.Visivel ? " visivel" : " oculta");
        if (column.Grupo >= 0)
            text << " grupo " << column.Grupo;
        text << '\n';
    }
    text << "fim\n"; // a file that was cut does not have it
    return text.str();
}

enum class Finding { Whole, Damaged, Newer };

Finding parse(std::istream& in, host::TLeiaute& layout) {
    std::string line;
    std::string word;
    std::getline(in, line);
    std::istringstream heading(line);
    if (!(heading >> word >> layout.Versao) || word != Heading || layout.Versao < 1)
        return Finding::Damaged;
    if (layout.Versao > host::TLeiaute::VersaoAtual)
        return Finding::Newer;
    while (std::getline(in, line) && line != "fim") {
        std::istringstream words(line);
        host::TColunaLeiaute column;
        std::string state;
        if (!(words >> column.Campo >> state) || (state != "visivel" && state != "oculta"))
            return Finding::Damaged;
        column.Visivel = state == "visivel";
        if (words >> word && (word != "grupo" || !(words >> column.Grupo) || column.Grupo < 0))
            return Finding::Damaged;
        layout.Colunas.push_back(std::move(column));
    }
    return line == "fim" && in.peek() == std::istream::traits_type::eof() ? Finding::Whole : Finding::Damaged;
}

Finding read(const path& file, host::TLeiaute& layout) {
    std::ifstream in(file);
    return in ? parse(in, layout) : Finding::Damaged;
}

// Out of the way of another of that name, without overwriting one that went before.
void moveAside(const path& file) {
    for (int number = 1;; ++number) {
        path aside = file;
        aside += ".danificado" + (number == 1 ? std::string() : std::to_string(number));
        if (!std::filesystem::exists(aside))
            return std::filesystem::rename(file, aside);
    }
}

} // namespace

path LayoutStore::folderOf(const host::TDonoLeiautes& owner) const {
    return folder_() / std::to_string(owner.IDUsuario) / encoded(owner.ChaveLeiaute);
}

path LayoutStore::fileOf(const host::TDonoLeiautes& owner, const std::string& name) const {
    const auto fileName = encoded(name);
    if (fileName.size() > LongestFileName)
        throw base::TFalha("O nome do leiaute é longo demais. Escolha um mais curto.");
    return folderOf(owner) / (fileName + Ending);
}

std::vector<std::string> LayoutStore::Listar(const host::TDonoLeiautes& owner) const {
    path folder;
    try {
        folder = folderOf(owner);
    } catch (const base::TFalha&) { // a user without a home has kept nothing
        return {};
    }
    std::vector<std::string> names;
    try {
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            if (const auto name = decoded(entry.path().stem().string()); name && entry.path().extension() == Ending)
                names.push_back(*name);
    } catch (const std::system_error& failure) {
        if (failure.code() != std::errc::no_such_file_or_directory) // nothing has been kept yet
            throw base::TFalha("Não foi possível ler a pasta de leiautes " + folder.string() +
                               ". Verifique as permissões.");
    }
    std::sort(names.begin(), names.end());
    return names;
}

host::TLeiaute LayoutStore::Ler(const host::TDonoLeiautes& owner, const std::string& name) const {
    const auto file = fileOf(owner, name);
    host::TLeiaute layout;
    const auto finding = read(file, layout);
    if (finding == Finding::Newer)
        throw base::TFalha("O leiaute \"" + name + "\" foi gravado por uma versão mais nova do programa e não foi " +
                           "aplicado. O arquivo " + file.string() + " ficou como está.");
    if (finding == Finding::Damaged)
        throw base::TFalha("O leiaute \"" + name + "\" não pôde ser lido e não foi aplicado. O arquivo " +
                           file.string() + " ficou como está.");
    return layout;
}

void LayoutStore::Gravar(const host::TDonoLeiautes& owner, const std::string& name, const host::TLeiaute& layout) {
    const auto file = fileOf(owner, name);
    try {
        std::filesystem::create_directories(file.parent_path());
        host::TLeiaute former;
        if (std::filesystem::exists(file) && read(file, former) != Finding::Whole)
            moveAside(file);
        base::GravarArquivoInteiro(file, [&](const path& aside) {
            std::ofstream out(aside, std::ios::binary);
            out.exceptions(std::ios::failbit | std::ios::badbit);
            out << textOf(layout);
            out.close();
        });
    } catch (const std::system_error&) {
        throw base::TFalha("Não foi possível gravar o leiaute em " + file.string() +
                           ". Verifique as permissões e o espaço em disco.");
    }
}

void LayoutStore::Excluir(const host::TDonoLeiautes& owner, const std::string& name) {
    const auto file = fileOf(owner, name);
    std::error_code failure;
    std::filesystem::remove(file, failure);
    if (failure)
        throw base::TFalha("Não foi possível excluir o leiaute " + file.string() + ". Verifique as permissões.");
}

} // namespace suite::program
