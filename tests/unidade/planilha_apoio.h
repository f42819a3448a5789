#pragma once

#include "exportacao_apoio.h"

namespace exportacao {

// The n-th element, from 0, of a list of them.
inline std::string elemento(const std::string& lista, const std::string& abre, int n) {
    auto inicio = lista.find(abre);
    for (; n > 0 && inicio != std::string::npos; --n)
        inicio = lista.find(abre, inicio + 1);
    EXPECT_NE(std::string::npos, inicio) << abre;
    return inicio == std::string::npos ? "" : lista.substr(inicio, lista.find(abre, inicio + 1) - inicio);
}

// A workbook as its cells are seen: "n 1234.5", "f B2-A2 = 7", "t Receita", "v" (blank); and the looks behind.
class Planilha {
  public:
    explicit Planilha(const std::filesystem::path& arquivo, int qual = 1)
        : folha(parte(arquivo, "xl/worksheets/sheet" + std::to_string(qual) + ".xml")),
          estilos(parte(arquivo, "xl/styles.xml")) {}
    std::string folha;
    std::string estilos;

    std::string celula(const std::string& lugar) const {
        const auto xml = fonteDa(lugar);
        if (xml.empty())
            return "(falta)";
        if (xml.find("t=\"inlineStr\"") != std::string::npos)
            return "t " + entre(entre(xml, "<t", "</is>"), ">", "</t>");
        if (xml.find("<v>") == std::string::npos)
            return "v";
        const auto formula = entre(xml, "<f>", "</f>");
        return (formula.empty() ? "n " : "f " + formula + " = ") + entre(xml, "<v>", "</v>");
    }
    // Of a row in the outline.
    std::string nivel(std::size_t linha) const {
        const auto inicio = folha.find("<row r=\"" + std::to_string(linha) + "\"");
        const auto texto = entre(folha.substr(inicio, folha.find('>', inicio) - inicio), "outlineLevel=\"", "\"");
        return texto.empty() ? "0" : texto;
    }
    // "negrito FF0000FF/FFD8E4F8 #,##0.00", a dash for what is not set.
    std::string estilo(const std::string& lugar) const {
        const auto xf = elemento(entre(estilos, "<cellXfs", "</cellXfs>"), "<xf ", valor(fonteDa(lugar), "s"));
        const auto fonte = elemento(entre(estilos, "<fonts", "</fonts>"), "<font>", valor(xf, "fontId"));
        const auto fundo = elemento(entre(estilos, "<fills", "</fills>"), "<fill>", valor(xf, "fillId"));
        return (fonte.find("<b/>") == std::string::npos ? "- " : "negrito ") +
               ouTraco(entre(fonte, "<color rgb=\"", "\"")) + "/" + ouTraco(entre(fundo, "<fgColor rgb=\"", "\"")) +
               " " + formato(valor(xf, "numFmtId"));
    }

  private:
    std::string fonteDa(const std::string& lugar) const {
        const auto inicio = folha.find("<c r=\"" + lugar + "\"");
        if (inicio == std::string::npos)
            return "";
        return folha.substr(inicio, std::min(folha.find("<c ", inicio + 1), folha.find("</row>", inicio)) - inicio);
    }
    static int valor(const std::string& xml, const std::string& nome) {
        return std::stoi(entre(xml, " " + nome + "=\"", "\""));
    }
    static std::string ouTraco(const std::string& texto) { return texto.empty() ? "-" : texto; }
    std::string formato(int codigo) const {
        if (codigo == 0 || codigo == 1 || codigo == 4) // the three of the format's own list that stand here
            return codigo == 0 ? "-" : codigo == 1 ? "0" : "#,##0.00";
        return entre(estilos, "numFmtId=\"" + std::to_string(codigo) + "\" formatCode=\"", "\"");
    }
};

} // namespace exportacao
