#include "host/Relatorios.h"

#include "base/Texto.h"
#include "host/DbManager.h"
#include "host/Grade.h"
#include "host/Servicos.h"

#include <algorithm>

namespace host {

namespace {

using base::TAlinhamento;
using base::TElementoFaixa;
using base::TLugar;

constexpr const char* Periodo = "Período: %s a %s";
constexpr float CorpoDoTitulo = 1.4F;
constexpr std::uint8_t ColunaDireita = 1; // of the head's ruler: left, right, number of the sheet
constexpr std::uint8_t ColunaFolha = 2;

std::string NomesDosEstabelecimentos(const std::string& AIDs) {
    const auto LDados = BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(
        base::Format("SELECT SC00_FILIAL.FILIAL,\n       SC00_FILIAL.NOME\n  FROM SC00_FILIAL\n WHERE "
                     "SC00_FILIAL.IDFILIAL IN (%s)\n ORDER BY SC00_FILIAL.FILIAL",
                     {AIDs}),
        "estabelecimentos do cabeçalho");
    std::string LNomes;
    for (; !LDados->Eof(); LDados->Next())
        LNomes += (LNomes.empty() ? "" : "; ") + LDados->FieldByName("FILIAL").AsString() + " - " +
                  LDados->FieldByName("NOME").AsString();
    return LNomes;
}

} // namespace

void TDMTandorRelPadrao::Imprimir() {
    const auto& LLogada = BuscarInstanciaZTEmpresaLogada();
    const auto LEmpresa = LLogada.BuscarDadosEmpresa(LLogada.GetIDEmpresa());
    FEmpresa = std::to_string(LEmpresa.Codigo) + " - " + LEmpresa.Nome;
    std::string LIDs;
    for (const auto& LID : FIDsFiliaisCabecalho)
        LIDs += (LIDs.empty() ? "" : ", ") + LID;
    FEstabelecimentos = NomesDosEstabelecimentos(LIDs.empty() ? std::to_string(FIDFilialCabecalho) : LIDs);
    FEstabelecimentos = (LIDs.empty() ? "Estabelecimento: " : "Estabelecimentos: ") + FEstabelecimentos +
                        (FTodasAsFiliais && LIDs.empty() ? " (todos os estabelecimentos)" : "");
    FEmissao = Servicos().Agora ? Servicos().Agora() : base::TDataHora();
}

base::TRegua TDMTandorRelPadrao::ReguaCabecalho() const {
    return {{{FEmpresa, "Emitido em 00/00/0000 00:00:00"}, 1},
            {{base::Format(Periodo, {std::string("00/00/0000"), std::string("00/00/0000")})}, 0},
            {{"00000"}, 0}};
}

std::vector<TElementoFaixa> TDMTandorRelPadrao::ElementosCabecalho(const std::string& ATitulo, bool APaisagem) const {
    std::vector<TElementoFaixa> LElementos;
    if (FMostrarEmpresa) {
        LElementos.push_back(ElementoTexto("lblEmpresa", FEmpresa, {0, ReguaDoCabecalho, 0, 1}));
        LElementos.back().Negrito = true;
    }
    if (FMostrarPeriodo) {
        LElementos.push_back(ElementoTexto("lblPeriodo",
                                           base::Format(Periodo, {FInicioCabecalho.Texto(), FFimCabecalho.Texto()}),
                                           {0, ReguaDoCabecalho, ColunaDireita, 2}));
        LElementos.back().Alinhamento = TAlinhamento::Direita;
    }
    LElementos.push_back(
        ElementoTexto(APaisagem ? "lblTituloPaisagem" : "lblTituloRetrato", ATitulo, {1, ReguaDoCabecalho, 0, 3}));
    LElementos.back().Negrito = true;
    LElementos.back().Corpo = CorpoDoTitulo;
    LElementos.push_back(ElementoTexto("lblEstabelecimento", FEstabelecimentos, {2, ReguaDoCabecalho, 0, 3}));
    LElementos.back().Cabimento = base::TCabimento::Quebra;
    return LElementos;
}

base::TFaixa TDMTandorRelPadrao::Rodape(bool APaisagem, bool AComFolha) const {
    const std::string LPagina = APaisagem ? "Paisagem" : "Retrato";
    base::TFaixa LFaixa;
    LFaixa.Nome = "RodapePagina";
    LFaixa.Especie = base::TEspecieFaixa::RodapePagina;
    LFaixa.Elementos.push_back(
        ElementoFio("LnRodape" + LPagina, base::TEspecieElemento::FioHorizontal, {0, ReguaDoCabecalho, 0, 3}));
    if (FMostrarEmissao && !FEmissao.Vazia())
        LFaixa.Elementos.push_back(
            ElementoTexto("lblDataHora" + LPagina, "Emitido em " + FEmissao.Texto(), {0, ReguaDoCabecalho, 0, 1}));
    if (AComFolha) {
        LFaixa.Elementos.push_back(
            ElementoTexto("lblFolha" + LPagina, "Folha:", {0, ReguaDoCabecalho, ColunaDireita, 1}));
        LFaixa.Elementos.back().Alinhamento = TAlinhamento::Direita;
        LFaixa.Elementos.push_back(ElementoTexto("svarFolha" + LPagina, "1", {0, ReguaDoCabecalho, ColunaFolha, 1}));
        LFaixa.Elementos.back().Folha = true;
    }
    return LFaixa;
}

bool TFluxoDeLinhas::Proxima(base::TFaixa& AFaixa) {
    if (!FIniciado) {
        FIniciado = true;
        AoIniciar();
    }
    while (FProntas.empty() && FProxima < FDados.RecordCount())
        AoLer(FProxima++);
    if (FProntas.empty() && !FTerminado) {
        FTerminado = true;
        AoTerminar();
    }
    if (FProntas.empty())
        return false;
    AFaixa = std::move(FProntas.front());
    FProntas.pop_front();
    return true;
}

base::TValor TFluxoDeLinhas::Valor(std::string_view ACampo, std::size_t ALinha) const {
    const auto* LCampo = FDados.FindField(ACampo);
    return LCampo ? FDados.Colunas()[LCampo->Indice()].Valor(FDados.LinhaDe(ALinha)) : base::TValor{};
}

std::int64_t TFluxoDeLinhas::InteiroOuZero(std::string_view ACampo, std::size_t ALinha) const {
    const auto LValor = Valor(ACampo, ALinha);
    const auto* LDecimal = std::get_if<base::TDecimal>(&LValor);
    return LDecimal ? LDecimal->ComEscala(0).Unidades : 0;
}

base::TMoeda TFluxoDeLinhas::MoedaOuZero(std::string_view ACampo, std::size_t ALinha) const {
    const auto LValor = Valor(ACampo, ALinha);
    const auto* LDecimal = std::get_if<base::TDecimal>(&LValor);
    return LDecimal ? base::TMoeda(*LDecimal) : base::TMoeda();
}

bool TFluxoDeLinhas::Igual(std::string_view ACampo, std::size_t ALinha, std::size_t AOutra) const {
    const auto* LCampo = FDados.FindField(ACampo);
    return !LCampo || FDados.Colunas()[LCampo->Indice()].Comparar(FDados.LinhaDe(ALinha), FDados.LinhaDe(AOutra)) == 0;
}

TElementoFaixa ElementoTexto(std::string ANome, std::string ATexto, TLugar ALugar) {
    TElementoFaixa LElemento;
    LElemento.Nome = std::move(ANome);
    LElemento.Texto = std::move(ATexto);
    LElemento.Lugar = ALugar;
    return LElemento;
}

TElementoFaixa ElementoValor(std::string ANome, base::TValor AValor, std::string AFormato, TLugar ALugar) {
    auto LElemento = ElementoTexto(std::move(ANome), TextoExibido(AValor, AFormato), ALugar);
    if (std::holds_alternative<base::TDecimal>(AValor))
        LElemento.Alinhamento = TAlinhamento::Direita;
    LElemento.Valor = std::move(AValor);
    LElemento.Formato = std::move(AFormato);
    return LElemento;
}

TElementoFaixa ElementoFio(std::string ANome, base::TEspecieElemento AEspecie, TLugar ALugar) {
    auto LElemento = ElementoTexto(std::move(ANome), {}, ALugar);
    LElemento.Especie = AEspecie;
    return LElemento;
}

TElementoFaixa ElementoForma(std::string ANome, base::TCor AFundo, TLugar ALugar) {
    auto LElemento = ElementoTexto(std::move(ANome), {}, ALugar);
    LElemento.Especie = base::TEspecieElemento::Forma;
    LElemento.Fundo = AFundo;
    return LElemento;
}

std::vector<std::string> AmostrasDoCampo(const TDataSet& ADados, std::string_view ACampo, std::string_view AFormato,
                                         std::size_t AMaximo) {
    const auto* LCampo = ADados.FindField(ACampo);
    if (!LCampo)
        return {};
    const auto& LColuna = ADados.Colunas()[LCampo->Indice()];
    if (LColuna.Descricao().Tipo == TTipoColuna::Texto) {
        std::string_view LMaior;
        for (std::size_t I = 0; I < LColuna.Tamanho(); ++I)
            if (!LColuna.Nulo(I) && LColuna.Texto(I).size() > LMaior.size())
                LMaior = LColuna.Texto(I);
        std::size_t LBytes = 0;
        for (std::size_t I = 0; I < AMaximo && LBytes < LMaior.size(); ++I)
            LBytes += std::max<std::size_t>(1, base::TamanhoDoCaractere(LMaior.substr(LBytes)));
        return {std::string(LMaior.substr(0, LBytes))};
    }
    std::vector<std::size_t> LExtremos;
    for (std::size_t I = 0; I < LColuna.Tamanho(); ++I) {
        if (LColuna.Nulo(I))
            continue;
        if (LExtremos.empty())
            LExtremos = {I, I};
        if (LColuna.Comparar(I, LExtremos.front()) < 0)
            LExtremos.front() = I;
        if (LColuna.Comparar(I, LExtremos.back()) > 0)
            LExtremos.back() = I;
    }
    std::vector<std::string> LAmostras;
    for (const auto LLinha : LExtremos)
        LAmostras.push_back(TextoExibido(LColuna.Valor(LLinha), AFormato));
    return LAmostras;
}

} // namespace host
