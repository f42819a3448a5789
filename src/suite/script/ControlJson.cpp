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

void describe(JsonObject& members, const host::TZTComboBox& combo) {
    const auto index = static_cast<std::size_t>(combo.ItemIndex());
    const bool chosen = combo.ItemIndex() >= 0;
    members.add("valor", chosen ? quoteJson(combo.GetValorSelecionado()) : "null")
        .add("texto", chosen ? quoteJson(combo.Itens()[index]) : "null")
        .add("itens", jsonTexts(combo.Itens()))
        .add("valores", jsonTexts(combo.Valores()));
}

void describe(JsonObject& members, const host::TZTDateEdit& date) {
    members.add("valor", date.Date().Vazia() ? "null" : quoteJson(date.Date().TextoIso()))
        .add("texto", quoteJson(date.Texto()));
}

void describe(JsonObject& members, const host::TZTLookupEx& lookup) {
    const auto& marked = lookup.GetResultSetMultiSelecao();
    std::vector<std::string> keys;
    if (const auto* key = marked.FindField(lookup.Definicao().CampoChave))
        for (std::size_t i = 0; i < marked.RecordCount(); ++i)
            keys.push_back(jsonValue(marked.Colunas()[key->Indice()].Valor(marked.LinhaDe(i))));
    members.add("valor", std::to_string(lookup.GetID()))
        .add("texto", quoteJson(lookup.Texto()))
        .add("ids", jsonList(keys))
        .add("ativo", jsonFlag(marked.Active()));
}

} // namespace

JsonObject describeControl(const host::TControle& control) {
    JsonObject members;
    members.add("tipo", quoteJson(kindOf(control)))
        .add("habilitado", jsonFlag(control.Enabled()))
        .add("visivel", jsonFlag(control.Visible()));
    if (const auto* combo = dynamic_cast<const host::TZTComboBox*>(&control)) {
        describe(members, *combo);
    } else if (const auto* date = dynamic_cast<const host::TZTDateEdit*>(&control)) {
        describe(members, *date);
    } else if (const auto* lookup = dynamic_cast<const host::TZTLookupEx*>(&control)) {
        describe(members, *lookup);
    } else {
        if (const auto* box = dynamic_cast<const host::TZTCheckBox*>(&control))
            members.add("marcado", jsonFlag(box->Checked()));
        members.add("texto", quoteJson(control.Caption()));
    }
    return members;
}

} // namespace suite::script
