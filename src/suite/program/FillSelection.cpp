#include "suite/program/FillSelection.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "host/Lookup.h"
#include "suite/script/FormDriver.h"

#include <vector>

namespace suite::program {

namespace {

std::vector<std::string> split(std::string_view list) {
    std::vector<std::string> items;
    for (std::size_t begin = 0; begin <= list.size();) {
        const auto end = std::min(list.find(',', begin), list.size());
        items.push_back(base::Trim(list.substr(begin, end - begin)));
        begin = end + 1;
    }
    return items;
}

class Filler {
  public:
    Filler(host::TForm& dialog, const ConsultOptions& options, const terminal::Headless& interaction)
        : dialog_(dialog), driver_(dialog), options_(options), interaction_(interaction) {}

    void run() {
        driver_.define("DeDataIni", options_.from);
        driver_.define("DeDataFim", options_.to);
        if (!options_.companies.empty())
            choose("--empresas", "LkpEmpresa", "{" + companyKeys() + "}", "a empresa logada não encabeça uma holding");
        // A blank date is told at the commit, before anything that depends on it.
        if (options_.from.empty() || options_.to.empty())
            return driver_.click("actOK");
        if (!leave("DeDataIni") || !leave("DeDataFim"))
            return;
        driver_.define("CbSelecionar", options_.view == "balanco" ? "1" : "2");
        driver_.leave("CbSelecionar");
        if (!options_.scenario.empty())
            driver_.define("CbCenario", options_.scenario);
        if (!options_.mode.empty())
            driver_.define("CbDetalharSelecao", options_.mode);
        driver_.leave("CbDetalharSelecao");
        statement();
        filters();
        percentages();
        driver_.click("actOK");
    }

  private:
    // False when the rules have something to say against it.
    bool leave(const char* control) {
        const auto before = interaction_.messageCount();
        driver_.leave(control);
        return interaction_.messageCount() == before;
    }
    void require(const char* option, const char* control, const char* why) {
        if (!dialog_.Controle(control).Enabled())
            throw base::TFalha(std::string("A opção ") + option + " não se aplica: " + why + ". Retire a opção.");
    }
    void choose(const char* option, const char* control, const std::string& value, const char* why) {
        require(option, control, why);
        driver_.define(control, value);
        const auto& lookup = dynamic_cast<const host::TZTLookupEx&>(dialog_.Controle(control));
        if (lookup.GetID() <= 0 && !lookup.GetResultSetMultiSelecao().Active())
            throw base::TFalha(std::string("A opção ") + option + " não encontrou \"" + value + "\".");
        driver_.leave(control);
    }
    // One code is typed, several are marked.
    void chooseCodes(const char* option, const char* control, const std::string& codes, const char* why) {
        if (!codes.empty())
            choose(option, control, codes.find(',') == std::string::npos ? codes : "{" + codes + "}", why);
    }
    void tick(const char* option, const char* control, const char* why) {
        require(option, control, why);
        driver_.define(control, "1");
        driver_.leave(control);
    }

    // Keys of the establishments "company/establishment" in the search over the holding.
    std::string companyKeys() {
        const auto& lookup = dynamic_cast<const host::TZTLookupEx&>(dialog_.Controle("LkpEmpresa"));
        const auto search = lookup.Pesquisar();
        std::string keys;
        for (const auto& wanted : split(options_.companies)) {
            const auto before = keys.size();
            for (search->First(); !search->Eof(); search->Next())
                if (search->FieldByName("EMPRESA").AsString() + "/" + search->FieldByName("FILIAL").AsString() ==
                    wanted)
                    keys += (keys.empty() ? "#" : ",#") + search->FieldByName("IDFILIAL").AsString();
            if (keys.size() == before)
                throw base::TFalha("A holding não tem o estabelecimento \"" + wanted +
                                   "\". Informe empresa/estabelecimento, como 2/1.");
        }
        return keys;
    }

    void statement() {
        constexpr const char* OnlyStatement = "ela pede \"--visualizar demonstracao\"";
        if (options_.view == "demonstracao" && options_.statement.empty())
            throw base::TFalha("Informe a demonstração com --relatorio CODIGO.");
        for (const auto& [option, value] :
             {std::pair{"--totais", options_.totals}, {"--dependencias", options_.dependencies}})
            if (!value.empty() && options_.view != "demonstracao")
                throw base::TFalha(std::string("A opção ") + option + " não se aplica: " + OnlyStatement +
                                   ". Retire a opção.");
        chooseCodes("--relatorio", "LkpRelatorioDemonstConfig", options_.statement, OnlyStatement);
        chooseCodes("--totalizadores", "LkpTotalizadorDemonstConfig", options_.totalizers, OnlyStatement);
        if (options_.details.empty())
            return;
        for (const auto& detail : split(options_.details)) {
            const char* control = detail == "contas"             ? "ChkDetalharTotalizadoresContas"
                                  : detail == "centros"          ? "ChkDetalharTotalizadoresCCusto"
                                  : detail == "estabelecimentos" ? "ChkDetalharTotalizadoresEstab"
                                                                 : nullptr;
            if (!control)
                throw base::TFalha("--detalhar aceita estabelecimentos, centros e contas, e não \"" + detail + "\".");
            tick("--detalhar", control, "este modo não tem esse detalhe");
        }
    }

    void filters() {
        constexpr const char* NotDetailed = "as projeções deste período não são detalhadas por estabelecimento";
        chooseCodes("--estabelecimentos", "LkpEstabelecimento", options_.establishments, NotDetailed);
        if (options_.groupEstablishments)
            tick("--agrupar", "ChkAgruparValFiliais",
                 options_.establishments.empty() ? NotDetailed : "com um só estabelecimento não há o que somar");
        chooseCodes("--centros", "LkpCentroCusto", options_.centres,
                    "esta consulta não detalha centros de custo (numa demonstração, use \"--detalhar contas\")");
        chooseCodes("--contas", "LkpContas", options_.accounts,
                    "esta consulta não detalha contas (numa demonstração, use \"--detalhar contas\")");
        if (options_.idlePeriods)
            tick("--periodos-sem-movimento", "ChkPerSemMov", "ela pede o modo 3");
    }

    void percentages() {
        if (!options_.percentage.empty())
            tick("--percentual",
                 options_.percentage == "orcado" ? "ChkDetPercRealizadoXOrcado"
                 : options_.percentage == "base" ? "ChkDetPercRealizadoXBase"
                                                 : "ChkDetPercAnaliseVertical",
                 "os percentuais se escolhem numa demonstração em colunas");
        if (options_.difference)
            tick("--diferenca", "ChkCalcularPercentualDiferenca",
                 "ela pede o modo 3 e um percentual sobre o orçado ou a base");
        if (options_.lines.empty())
            return;
        for (const auto& line : split(options_.lines))
            if (line != "B" && line != "O" && line != "R")
                throw base::TFalha("--linhas aceita B, O e R, separadas por vírgula, e não \"" + line + "\".");
        const auto wanted = "," + options_.lines + ",";
        for (const auto& [letter, control] :
             {std::pair{"B", "ChkLinhaVlrBase"}, {"O", "ChkLinhaVlrOrcado"}, {"R", "ChkLinhaVlrRealizado"}}) {
            require("--linhas", control, "ela pede o modo 3");
            const bool on = wanted.find(std::string(",") + letter + ",") != std::string::npos;
            driver_.define(control, on ? "1" : "0");
            if (dynamic_cast<const host::TZTCheckBox&>(dialog_.Controle(control)).Checked() != on)
                throw base::TFalha(std::string("A linha ") + letter +
                                   " não pode sair: o percentual escolhido precisa dela.");
        }
    }

    host::TForm& dialog_;
    script::FormDriver driver_;
    const ConsultOptions& options_;
    const terminal::Headless& interaction_;
};

} // namespace

void fillSelection(host::TForm& dialog, const ConsultOptions& options, const terminal::Headless& interaction) {
    Filler(dialog, options, interaction).run();
}

} // namespace suite::program
