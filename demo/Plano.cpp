#include "demo/Plano.h"

#include "demo/Carga.h"
#include "demo/Organizacao.h"

#include <algorithm>
#include <stdexcept>

namespace demo {

namespace {

using base::Inteiro;

constexpr int PrimeiraConta = 5001;
constexpr int PrimeiraSub = 3001;
constexpr int MenorLargura = 3; // digits of the last level of a classification

std::string_view ClassifDoPai(std::string_view AClassif) {
    const auto LPonto = AClassif.rfind('.');
    return LPonto == std::string_view::npos ? std::string_view{} : AClassif.substr(0, LPonto);
}

std::string ComLargura(int ANumero, int ALargura) {
    const auto LTexto = std::to_string(ANumero);
    return std::string(static_cast<std::size_t>(std::max(0, ALargura - static_cast<int>(LTexto.size()))), '0') + LTexto;
}

std::vector<std::string> Partes(std::string_view ATexto) {
    std::vector<std::string> LPartes;
    while (!ATexto.empty()) {
        const auto LFim = std::min(ATexto.find(';'), ATexto.size());
        LPartes.emplace_back(ATexto.substr(0, LFim));
        ATexto.remove_prefix(std::min(LFim + 1, ATexto.size()));
    }
    return LPartes;
}

// 1 revenue, 2 expense, 0 not configured.
int Finalidade(const TConta& AConta) {
    if ((AConta.Modelo->Marcas & SemFinalidade) != 0)
        return 0;
    if (AConta.Classif.starts_with("3"))
        return AConta.Classif.starts_with("3.2") ? 2 : 1;
    return AConta.Classif.starts_with("4") ? 2 : 0;
}

} // namespace

TPlano::TPlano(int AEscala) {
    for (const auto LModelos :
         {ContasPatrimoniais(), ContasDeReceita(), ContasDeCusto(), ContasDeDespesa(), ContasGerenciais()})
        for (const auto& LModelo : LModelos)
            Acrescentar(LModelo, std::string(LModelo.Classif), std::string(LModelo.Nome));
    for (const auto& LDescarga : Descargas())
        FContas[static_cast<std::size_t>(Lugar(LDescarga.Classif))].Superior = Lugar(LDescarga.Superior);

    // A fixed width of the last level keeps one account's classification from being a prefix of another's.
    int LMaior = 0;
    for (const auto& [LTitulo, LQuantas] : FFilhas)
        LMaior = std::max(LMaior, LQuantas * AEscala);
    const int LLargura = std::max(MenorLargura, static_cast<int>(std::to_string(LMaior).size()));
    const auto LOriginais = FContas.size();
    for (std::size_t i = 0; i < LOriginais; ++i)
        if (const auto& LConta = FContas[i]; !LConta.Titulo() && LLargura > MenorLargura) {
            const auto LPai = std::string(ClassifDoPai(LConta.Classif));
            const auto LFilha = std::stoi(LConta.Classif.substr(LPai.size() + 1));
            FPorClassif[FContas[i].Classif = LPai + "." + ComLargura(LFilha, LLargura)] = static_cast<int>(i);
        }
    for (int LGrupo = 2; LGrupo <= AEscala; ++LGrupo)
        for (std::size_t i = 0; i < LOriginais; ++i) {
            if (!FContas[i].ComMovimento())
                continue;
            const auto LPai = std::string(ClassifDoPai(FContas[i].Classif));
            const auto LFilha = FFilhas[LPai] + 1;
            Acrescentar(*FContas[i].Modelo, LPai + "." + ComLargura(LFilha, LLargura),
                        std::string(FContas[i].Modelo->Nome) + " - grupo " + std::to_string(LGrupo));
            FContas.back().Superior = FContas[i].Superior;
        }
    for (std::size_t i = 0; i < FContas.size(); ++i)
        Subir(static_cast<int>(i), FAcima.emplace_back());
}

void TPlano::Acrescentar(const TModeloConta& AModelo, std::string AClassif, std::string ANome) {
    const auto LLugar = static_cast<int>(FContas.size());
    const auto LPai = std::string(ClassifDoPai(AClassif));
    std::vector<int> LSubs;
    for (auto& LDescricao : Partes(AModelo.Subs)) {
        auto LAchada = std::find(FSubs.begin(), FSubs.end(), LDescricao);
        if (LAchada == FSubs.end())
            LAchada = FSubs.insert(FSubs.end(), std::move(LDescricao));
        LSubs.push_back(PrimeiraSub + static_cast<int>(LAchada - FSubs.begin()));
    }
    ++FFilhas[LPai];
    FPorClassif[AClassif] = LLugar;
    FContas.push_back({PrimeiraConta + LLugar, LLugar + 1, std::move(AClassif), std::move(ANome),
                       LPai.empty() ? -1 : Lugar(LPai), -1, &AModelo, std::move(LSubs)});
}

int TPlano::Lugar(std::string_view AClassif) const {
    const auto LAchada = FPorClassif.find(AClassif);
    if (LAchada == FPorClassif.end())
        throw std::logic_error("no account " + std::string(AClassif));
    return LAchada->second;
}

std::vector<int> TPlano::Analiticas(std::string_view AClassif) const {
    std::vector<int> LContas;
    const auto LAbaixo = std::string(AClassif) + ".";
    for (std::size_t i = 0; i < FContas.size(); ++i) {
        const auto LClassif = FContas[i].Modelo->Classif;
        if (FContas[i].ComMovimento() && (LClassif == AClassif || LClassif.starts_with(LAbaixo)))
            LContas.push_back(static_cast<int>(i));
    }
    return LContas;
}

void TPlano::Subir(int AConta, std::vector<int>& ADestino) const {
    const auto& LConta = Conta(AConta);
    for (const int LAcima : {LConta.Pai, LConta.Superior == LConta.Pai ? -1 : LConta.Superior})
        if (LAcima >= 0) {
            ADestino.push_back(LAcima);
            Subir(LAcima, ADestino);
        }
}

int TPlano::IdDaSub(std::string_view ADescricao) const {
    const auto LAchada = std::find(FSubs.begin(), FSubs.end(), ADescricao);
    if (LAchada == FSubs.end())
        throw std::logic_error("no sub-account " + std::string(ADescricao));
    return PrimeiraSub + static_cast<int>(LAchada - FSubs.begin());
}

void TPlano::Gravar(suite::firebird::Transaction& ATransacao) const {
    const auto LIdDe = [&](int ALugar) { return ALugar < 0 ? base::Nulo : Inteiro(Conta(ALugar).Id); };
    TCarga LContas(ATransacao, "CO01_PLANO",
                   {"IDPLANO", "IDEMPRESA", "IDPLANOPAI", "CTASUPERIOR", "CONTA", "CLASSIFCONTAB", "NOME", "CTATITULO",
                    "TPCONTA"});
    for (const auto& LConta : FContas)
        LContas.Linha({Inteiro(LConta.Id), Inteiro(Holding().Id), LIdDe(LConta.Pai), LIdDe(LConta.Superior),
                       Inteiro(LConta.Codigo), Texto(LConta.Classif), Texto(LConta.Nome),
                       Inteiro(LConta.Titulo() ? 1 : 2), Inteiro(std::min(LConta.Classif.front() - '0', 3))});
    LContas.Terminar();
    TCarga LSubs(ATransacao, "CO01_PLANOSUB", {"IDPLANOSUB", "CODIGO", "DESCRICAO"});
    for (std::size_t i = 0; i < FSubs.size(); ++i)
        LSubs.Linha({Inteiro(PrimeiraSub + static_cast<int>(i)), Inteiro(static_cast<int>(i) + 1), Texto(FSubs[i])});
    LSubs.Terminar();
    GravarFinalidades(ATransacao);
}

void TPlano::GravarFinalidades(suite::firebird::Transaction& ATransacao) const {
    TCarga LConfig(ATransacao, "CO01_PLANOCFG",
                   {"IDPLANOCFG", "IDPLANO", "IDEMPRESA", "ORIGEM", "ESPECIE", "INFORMACAO1"});
    int LProximo = 1;
    const auto LIncluir = [&](const TConta& AConta, int AOrigem, int AEspecie, const base::TValor& AInformacao) {
        LConfig.Linha({Inteiro(LProximo++), Inteiro(AConta.Id), Inteiro(Holding().Id), Inteiro(AOrigem),
                       Inteiro(AEspecie), AInformacao});
    };
    for (const auto& LConta : FContas)
        if (const int LFinalidade = Finalidade(LConta); LFinalidade != 0)
            LIncluir(LConta, 20, 1, Inteiro(LFinalidade));
    // Balance sheet accounts that are confronted all the same: a title, for its children, and single accounts.
    for (const auto& LConta : FContas)
        if (LConta.Classif == "1.2.02" ||
            (LConta.Modelo->Natureza == TNatureza::Investimento && LConta.Classif.starts_with("1.2.03")))
            LIncluir(LConta, 21, 50, base::Nulo);
    LConfig.Terminar();
}

} // namespace demo
