#include "suite/script/ControlJson.h"

#include "host/Grade.h"
#include "host/Lookup.h"

namespace suite::script {

namespace {

const char* kindOf(const host::TControle& control) {
    if (dynamic_cast<const host::TZTCheckBox*>(&control))
        return "caixa";
    if (dynamic_cast<const host::TZTComboBox*>(&control))
        return "combo";
    if (dynamic_cast<const host::TZTDateEdit*>(&control))
        return "data";
    if (dynamic_cast<const host::TZTLookupEx*>(&control))
        return "lookup";
    if (dynamic_cast<const host::TAction*>(&control))
        return "acao";
    if (dynamic_cast<const host::TGrade*>(&control))
        return "grade";
    if (dynamic_cast<const host::TPanel*>(&control))
        return "painel";
    if (dynamic_cast<const host::TLabel*>(&control))
        return "rotulo";
    return "componente";
}

void describe(exporting::JsonObject& members, const host::TZTComboBox& combo) {
    const auto index = static_cast<std::size_t>(combo.ItemIndex());
    const bool chosen = combo.ItemIndex() >= 0;
    members.add("valor", chosen ? exporting::quoteJson(combo.GetValorSelecionado()) : "null")
        .add("texto", chosen ? exporting::quoteJson(combo.Itens()[index]) : "null")
        .add("itens", exporting::jsonTexts(combo.Itens()))
        .add("valores", exporting::jsonTexts(combo.Valores()));
}

void describe(exporting::JsonObject& members, const host::TZTDateEdit& date) {
    members.add("valor", date.Date().Vazia() ? "null" : exporting::quoteJson(date.Date().TextoIso()))
        .add("texto", exporting::quoteJson(date.Texto()));
}

void describe(exporting::JsonObject& members, const host::TZTLookupEx& lookup) {
    const auto& marked = lookup.GetResultSetMultiSelecao();
    std::vector<std::string> keys;
    if (const auto* key = marked.FindField(lookup.Definicao().CampoChave))
        for (std::size_t i = 0; i < marked.RecordCount(); ++i)
            keys.push_back(exporting::jsonValue(marked.Colunas()[key->Indice()].Valor(marked.LinhaDe(i))));
    members.add("valor", std::to_string(lookup.GetID()))
        .add("texto", exporting::quoteJson(lookup.Texto()))
        .add("ids", exporting::jsonList(keys))
        .add("ativo", exporting::jsonFlag(marked.Active()));
}

} // namespace

exporting::JsonObject describeControl(const host::TControle& control) {
    exporting::JsonObject members;
    members.add("tipo", exporting::quoteJson(kindOf(control)))
        .add("habilitado", exporting::jsonFlag(control.Enabled()))
        .add("visivel", exporting::jsonFlag(control.Visible()));
    if (const auto* combo = dynamic_cast<const host::TZTComboBox*>(&control)) {
        describe(members, *combo);
    } else if (const auto* date = dynamic_cast<const host::TZTDateEdit*>(&control)) {
        describe(members, *date);
    } else if (const auto* lookup = dynamic_cast<const host::TZTLookupEx*>(&control)) {
        describe(members, *lookup);
    } else {
        if (const auto* box = dynamic_cast<const host::TZTCheckBox*>(&control))
            members.add("marcado", exporting::jsonFlag(box->Checked()));
        members.add("texto", exporting::quoteJson(control.Caption()));
    }
    return members;
}

} // namespace suite::script
