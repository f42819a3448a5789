#include "suite/script/FormDriver.h"

#include "base/Texto.h"
#include "host/Lookup.h"

#include <algorithm>
#include <optional>

namespace suite::script {

namespace {

void pick(host::TZTComboBox& combo, const std::string& value) {
    const auto& values = combo.Valores();
    if (std::find(values.begin(), values.end(), value) == values.end()) {
        std::string list;
        for (const auto& known : values)
            list += (list.empty() ? "" : ", ") + known;
        throw WrongUse(combo.Nome() + " não tem o valor \"" + value + "\". Valores: " + list + ".");
    }
    combo.SetValorSelecionado(value);
}

void tick(host::TZTCheckBox& box, const std::string& value) {
    if (value != "0" && value != "1")
        throw WrongUse(box.Nome() + " aceita 1 ou 0, e não \"" + value + "\".");
    box.SetChecked(value == "1");
}

// Positions, from 1, of the rows that a list of codes and keys names, in the order of the search.
std::vector<std::size_t> rowsOf(const host::TZTLookupEx& lookup, const host::TDataSet& search, std::string_view list) {
    std::vector<std::size_t> rows;
    while (!list.empty()) {
        const auto comma = std::min(list.find(','), list.size());
        const auto item = base::Trim(list.substr(0, comma));
        list.remove_prefix(std::min(comma + 1, list.size()));
        const bool key = item.starts_with('#');
        const auto* field = search.FindField(key ? lookup.Definicao().CampoChave : lookup.Definicao().CampoPesquisa);
        const auto& column = search.Colunas()[field->Indice()];
        const auto before = rows.size();
        for (std::size_t i = 0; i < search.RecordCount(); ++i)
            if (host::EhOCodigo(column.Valor(search.LinhaDe(i)), std::string_view(item).substr(key ? 1 : 0)))
                rows.push_back(i + 1);
        if (rows.size() == before)
            throw WrongUse("A pesquisa de " + lookup.Nome() + " não tem o registro \"" + item + "\".");
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void choose(host::TZTLookupEx& lookup, const std::string& value) {
    if (!value.starts_with('#') && !value.starts_with('{'))
        return lookup.Digitar(value);
    const auto search = lookup.Pesquisar();
    if (value.starts_with('#') && value.find(',') == std::string::npos)
        return lookup.Escolher(*search, rowsOf(lookup, *search, value).front());
    if (!value.starts_with('{') || !value.ends_with('}') || !lookup.Definicao().MultiSelecao)
        throw WrongUse(lookup.Nome() + " não aceita \"" + value + "\".");
    lookup.Marcar(*search, rowsOf(lookup, *search, std::string_view(value).substr(1, value.size() - 2)));
}

// What no user could do is no failure of the form, which would be told in it.
void asUser(host::TForm& form, const std::function<void()>& act) {
    std::optional<WrongUse> wrong;
    form.Realizar([&] {
        try {
            act();
        } catch (const WrongUse& use) {
            wrong = use;
        }
    });
    if (wrong)
        throw WrongUse(*wrong);
}

} // namespace

host::TControle& FormDriver::usable(std::string_view name) const {
    auto& found = control(form_, name);
    if (!found.Enabled())
        throw WrongUse(found.Nome() + " está desabilitado para esta escolha.");
    if (!found.Visible())
        throw WrongUse(found.Nome() + " não está à vista.");
    return found;
}

host::TControle& FormDriver::control(const host::TForm& form, std::string_view name) {
    try {
        return form.Controle(name);
    } catch (const base::TFalha& unknown) {
        throw WrongUse(unknown.what());
    }
}

void FormDriver::define(std::string_view name, const std::string& value) {
    auto& target = usable(name);
    asUser(form_, [&] {
        if (auto* box = dynamic_cast<host::TZTCheckBox*>(&target))
            tick(*box, value);
        else if (auto* combo = dynamic_cast<host::TZTComboBox*>(&target))
            pick(*combo, value);
        else if (auto* date = dynamic_cast<host::TZTDateEdit*>(&target))
            date->SetTexto(value);
        else if (auto* lookup = dynamic_cast<host::TZTLookupEx*>(&target))
            choose(*lookup, value);
        else
            throw WrongUse(target.Nome() + " não recebe valor.");
    });
}

void FormDriver::leave(std::string_view name) { form_.SairDe(usable(name)); }

void FormDriver::click(std::string_view name) {
    auto& target = usable(name);
    if (auto* action = dynamic_cast<host::TAction*>(&target))
        form_.Executar(*action);
    else if (auto* box = dynamic_cast<host::TZTCheckBox*>(&target))
        asUser(form_, [&] { box->SetChecked(!box->Checked()); });
    else
        throw WrongUse(target.Nome() + " não é um botão, uma ação ou uma caixa de marcar.");
}

void FormDriver::press(std::string_view name, host::TTecla key) { form_.Teclar(usable(name), key); }

} // namespace suite::script
