#include "suite/script/FormDriver.h"

#include "host/Falhas.h"

#include <algorithm>

namespace suite::script {

namespace {

void pick(host::TZTComboBox& combo, const std::string& value) {
    const auto& values = combo.Valores();
    if (std::find(values.begin(), values.end(), value) == values.end()) {
        std::string list;
        for (const auto& known : values)
            list += (list.empty() ? "" : ", ") + known;
        throw host::TFalha(combo.Nome() + " não tem o valor \"" + value + "\". Valores: " + list + ".");
    }
    combo.SetValorSelecionado(value);
}

void tick(host::TZTCheckBox& box, const std::string& value) {
    if (value != "0" && value != "1")
        throw host::TFalha(box.Nome() + " aceita 1 ou 0, e não \"" + value + "\".");
    box.SetChecked(value == "1");
}

} // namespace

void FormDriver::define(std::string_view name, const std::string& value) {
    auto& control = form_.Controle(name);
    if (!control.Enabled())
        throw host::TFalha(control.Nome() + " está desabilitado para esta escolha.");
    if (auto* box = dynamic_cast<host::TZTCheckBox*>(&control))
        tick(*box, value);
    else if (auto* combo = dynamic_cast<host::TZTComboBox*>(&control))
        pick(*combo, value);
    else if (auto* date = dynamic_cast<host::TZTDateEdit*>(&control))
        date->SetTexto(value);
    else
        throw host::TFalha(control.Nome() + " não recebe valor.");
}

void FormDriver::leave(std::string_view control) { form_.SairDe(form_.Controle(control)); }

void FormDriver::click(std::string_view action) { form_.Executar(form_.Acao(action)); }

} // namespace suite::script
