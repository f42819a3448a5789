#include "suite/script/Show.h"

#include "base/Texto.h"
#include "suite/script/ControlJson.h"
#include "suite/script/FormDriver.h"
#include "suite/script/GridJson.h"
#include "suite/script/ScriptReader.h"

#include <algorithm>
#include <array>

namespace suite::script {

namespace {

std::string describe(const host::TConteudoDescrito& content) {
    if (const auto* value = std::get_if<base::TValor>(&content))
        return exporting::jsonValue(*value);
    if (const auto* flag = std::get_if<bool>(&content))
        return exporting::jsonFlag(*flag);
    if (const auto* texts = std::get_if<std::vector<std::string>>(&content))
        return exporting::jsonTexts(*texts);
    exporting::JsonObject members;
    for (const auto& field : std::get<std::vector<host::TCampoDescrito>>(content))
        members.add(field.Nome, describe(field.Conteudo));
    return members.text();
}

const host::TGrade& requireGrid(host::TFormZTTandorPadraoSelecao& window) {
    if (const auto* grid = window.GradeEmVista())
        return *grid;
    throw WrongUse("Nenhuma grade está à vista.");
}

// Those of the query module, and what else the window and the form in front show.
std::vector<const host::TDataSet*> dataSetsOf(const View& view) {
    std::vector<const host::TDataSet*> known;
    if (view.window.DataModule())
        for (const auto* dataSet : view.window.DataModule()->DataSets())
            known.push_back(dataSet);
    for (const host::TForm* form : {static_cast<const host::TForm*>(&view.window), &view.front})
        for (const auto* source : form->Fontes())
            if (source->DataSet && std::find(known.begin(), known.end(), source->DataSet) == known.end())
                known.push_back(source->DataSet);
    return known;
}

const host::TDataSet& findDataSet(const View& view, const std::string& name) {
    std::string list;
    for (const auto* dataSet : dataSetsOf(view)) {
        if (dataSet->Nome() == name)
            return *dataSet;
        list += (list.empty() ? "" : ", ") + dataSet->Nome();
    }
    throw WrongUse("Não há o conjunto de dados \"" + name + "\". Existem: " + list + ".");
}

void showControls(JsonLines& out, const View& view, const std::string& rest) {
    exporting::JsonObject controls;
    const auto names = splitWords(rest, std::string::npos);
    for (const auto& name : names)
        controls.add(name, describeControl(FormDriver::control(view.front, name)).text());
    if (names.empty())
        for (const auto* control : view.front.Controles())
            controls.add(control->Nome(), describeControl(*control).text());
    exporting::JsonObject members;
    out.write("controles", members.add("controles", controls.text()));
}

void showSelection(JsonLines& out, const View& view, const std::string&) {
    exporting::JsonObject members;
    const auto fields =
        view.window.DataModule() ? view.window.DataModule()->DescreverCampos() : std::vector<host::TCampoDescrito>{};
    out.write("selecao", members.add("campos", describe(fields)));
}

void showWindow(JsonLines& out, const View& view, const std::string&) {
    const auto* grid = view.window.GradeEmVista();
    std::string legend;
    for (const auto* control : view.window.Controles())
        if (control->Visible() && control->Nome().starts_with("PnlLegenda"))
            legend = control->Nome();
    exporting::JsonObject data;
    for (const auto* source : view.window.Fontes())
        if (source->DataSet) {
            exporting::JsonObject state;
            state.add("aberto", exporting::jsonFlag(source->DataSet->Active()))
                .add("linhas", std::to_string(source->DataSet->RecordCount()));
            data.add(source->DataSet->Nome(), state.text());
        }
    exporting::JsonObject members;
    out.write("janela", members.add("grade", exporting::jsonTextOrNull(grid ? grid->Nome() : std::string()))
                            .add("legenda", exporting::jsonTextOrNull(legend))
                            .add("titulo", exporting::quoteJson(titleInView(view.window)))
                            .add("dados", data.text()));
}

void showRows(JsonLines& out, const View& view, const std::string& rest) {
    if (rest == PrintedReport::RowsName)
        return out.write("linhas", view.printed.rows);
    if (!rest.empty())
        return out.writeRows(findDataSet(view, rest));
    const auto* rows = requireGrid(view.window).DataSet();
    if (!rows)
        throw WrongUse("A grade à vista não tem dados.");
    out.writeRows(*rows);
}

void showColumns(JsonLines& out, const View& view, const std::string&) {
    exporting::JsonObject members;
    out.write("colunas", members.add("colunas", describeColumns(requireGrid(view.window))));
}

void showCells(JsonLines& out, const View& view, const std::string& rest) {
    const auto words = splitWords(rest, 2);
    const bool selected = words.size() > 1;
    if (words.empty() || (selected && words.back() != "selecionada"))
        throw WrongUse("O passo se escreve \"mostrar celulas N [selecionada]\".");
    const auto& grid = requireGrid(view.window);
    const auto row = base::NumeroOuZero(words.front());
    const auto count = grid.DataSet() ? grid.DataSet()->RecordCount() : 0;
    if (row < 1 || static_cast<std::size_t>(row) > count)
        throw WrongUse("A grade tem " + std::to_string(count) + " linhas; não há a linha \"" + words.front() + "\".");
    exporting::JsonObject members;
    out.write("celulas",
              members.add("campos", describeCells(grid, static_cast<std::size_t>(row) - 1, selected).text()));
}

void showCommand(JsonLines& out, const View& view, const std::string& rest) {
    if (rest.empty())
        throw WrongUse("O passo se escreve \"mostrar comando DATASET\".");
    const auto* dataSet = dynamic_cast<const host::TZTClientDataSet*>(&findDataSet(view, rest));
    if (!dataSet)
        throw WrongUse(rest + " não recebe comandos.");
    exporting::JsonObject members;
    out.write("comando", members.add("texto", exporting::quoteJson(dataSet->CommandText)));
}

void showReport(JsonLines& out, const View& view, const std::string&) {
    if (view.printed.bands.empty())
        throw WrongUse("Nenhum relatório foi impresso.");
    out.write("relatorio", view.printed.bands);
}

struct Subject {
    const char* name;
    bool alone; // nothing may follow
    void (*show)(JsonLines&, const View&, const std::string&);
};

constexpr std::array<Subject, 8> Subjects{{{"controles", false, showControls},
                                           {"selecao", true, showSelection},
                                           {"janela", true, showWindow},
                                           {"linhas", false, showRows},
                                           {"colunas", true, showColumns},
                                           {"celulas", false, showCells},
                                           {"relatorio", true, showReport},
                                           {"comando", false, showCommand}}};

std::string listOfSubjects() {
    std::string list;
    for (const auto& subject : Subjects)
        list += (list.empty() ? "" : ", ") + std::string(subject.name);
    return list;
}

} // namespace

std::string titleInView(const host::TForm& window) {
    for (const auto* control : window.Controles())
        if (control->Nome() == "PnlTitulo")
            return control->Caption();
    return {};
}

void show(JsonLines& out, const View& view, const std::string& request) {
    const auto words = splitWords(request, 2);
    const auto subject =
        std::find_if(Subjects.begin(), Subjects.end(), [&](const Subject& s) { return s.name == words.front(); });
    if (subject == Subjects.end())
        throw WrongUse("Não há o que mostrar por \"" + words.front() + "\". Existem: " + listOfSubjects() + ".");
    if (subject->alone && words.size() > 1)
        throw WrongUse("Nada segue \"mostrar " + words.front() + "\".");
    subject->show(out, view, words.size() > 1 ? words.back() : std::string());
}

} // namespace suite::script
