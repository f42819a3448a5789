#include "consultation/RegrasCelulas.h"

#include "base/Texto.h"
#include "core/Un04618Selecao.h"

#include <algorithm>
#include <array>

namespace pct04618 {

namespace {

constexpr std::int32_t ContaTitulo = 1;
constexpr std::int32_t LinhaBase = 1;
constexpr std::int32_t LinhaOrcado = 2;

bool Uma(std::string_view AColuna, std::initializer_list<std::string_view> AColunas) {
    return std::find(AColunas.begin(), AColunas.end(), AColuna) != AColunas.end();
}

bool EhIdentificacao(std::string_view AColuna) {
    return Uma(AColuna, {"CLASSIFCONTAB", "NOMECONTA", "CONTA", "SUBCONTA", "CCUSTO", "FILIAL"});
}

bool OcultaValorZero(const TCelulaBalanco& ACelula) { return Uma(ACelula.Coluna, {"CONTA", "CODIGO", "CCUSTO"}); }

// Four decimals decide: what is less does not count.
std::int64_t DecimosDeMilesimo(const std::string& ATexto) {
    return base::TMoeda(base::TDecimal::De(ATexto).value_or(base::TDecimal())).Decimal().Unidades;
}

void ColorirFonteVariacao(const TCelulaBalanco& ACelula, host::TAparencia& AAparencia) {
    const auto LVariacao = DecimosDeMilesimo(ACelula.DeltaVariacao);
    if (ACelula.RecDesp == "Receita")
        AAparencia.Fonte = LVariacao > 0 ? cores::Azul : cores::Vermelho;
    else if (ACelula.RecDesp == "Despesa" && LVariacao != 0)
        AAparencia.Fonte = LVariacao > 0 ? cores::VerdeAzulado : cores::Roxo;
}

// The line that opens a block of lines of one account.
bool EhPrimeiraLinha(const TCelulaPeriodos& C) {
    return (C.TipoLinha == LinhaBase && C.LinhaVlrBase) ||
           (C.TipoLinha == LinhaOrcado && C.LinhaVlrOrcado && C.LinhaVlrRealizado && !C.LinhaVlrBase);
}

void ColorirFundoLinha(const TCelulaPeriodos& ACelula, host::TAparencia& AAparencia) {
    AAparencia.Fonte = cores::Preto;
    if (!EhPrimeiraLinha(ACelula))
        return;
    if (ACelula.CtaTitulo == ContaTitulo)
        AAparencia.Fundo = cores::AzulForte;
    else
        AAparencia.Fundo = ACelula.DetContasTotaliz && !ACelula.IDPlano.empty() ? cores::VerdeClaro : cores::AzulClaro;
}

bool OcultarIdentificacaoRepetida(const TCelulaPeriodos& C) {
    auto LMostra = C.TipoLinha;
    if (C.LinhaVlrOrcado && C.LinhaVlrRealizado)
        LMostra = C.LinhaVlrBase ? LinhaBase : LinhaOrcado;
    if (C.TipoLinha != LMostra)
        return true;
    return !Uma(C.Coluna, {"NOMECONTA", "FILIAL"}) && base::Trim(C.Texto) == "0";
}

std::int32_t Numero(const host::TCelula& ACelula, std::string_view ACampo) {
    return base::NumeroOuZero(base::TextoDe(ACelula.Valor(ACampo)));
}

} // namespace

host::TAparencia AparenciaDaCelula(const TCelulaBalanco& ACelula) {
    host::TAparencia LAparencia;
    LAparencia.Negrito = ACelula.CtaTitulo == ContaTitulo;
    if (!ACelula.Selecionada)
        ColorirFonteVariacao(ACelula, LAparencia);
    LAparencia.Vazio = OcultaValorZero(ACelula) && base::Trim(ACelula.Texto) == "0";
    return LAparencia;
}

host::TAparencia AparenciaDaCelula(const TCelulaPeriodos& ACelula) {
    host::TAparencia LAparencia;
    LAparencia.Negrito = ACelula.TipoLinha == LinhaOrcado || Uma(ACelula.Coluna, {"TOTAL", "PERCTOT"});
    if (!ACelula.Selecionada)
        ColorirFundoLinha(ACelula, LAparencia);
    if (EhIdentificacao(ACelula.Coluna)) {
        LAparencia.Negrito = LAparencia.Negrito || ACelula.CtaTitulo == ContaTitulo;
        LAparencia.Vazio = OcultarIdentificacaoRepetida(ACelula);
    }
    return LAparencia;
}

TCelulaBalanco LerCelulaBalanco(const host::TCelula& ACelula) {
    TCelulaBalanco LCelula;
    LCelula.CtaTitulo = Numero(ACelula, "CTATITULO");
    LCelula.DeltaVariacao = base::TextoDe(ACelula.Valor("DELTAVARIACAO"));
    LCelula.RecDesp = base::TextoDe(ACelula.Valor("RECDESP"));
    LCelula.Coluna = ACelula.Coluna->Campo;
    LCelula.Selecionada = ACelula.Selecionada;
    if (OcultaValorZero(LCelula))
        LCelula.Texto = ACelula.Texto();
    return LCelula;
}

TCelulaPeriodos LerCelulaPeriodos(const host::TCelula& ACelula, const TSelecao& ASelecao) {
    TCelulaPeriodos LCelula;
    LCelula.LinhaVlrBase = ASelecao.FDetalharLinhaVlrBase;
    LCelula.LinhaVlrOrcado = ASelecao.FDetalharLinhaVlrOrcado;
    LCelula.LinhaVlrRealizado = ASelecao.FDetalharLinhaVlrRealizado;
    LCelula.DetContasTotaliz = ASelecao.FImprimirDetContasTotaliz;
    LCelula.TipoLinha = Numero(ACelula, "TIPOLINHA");
    LCelula.CtaTitulo = Numero(ACelula, "CTATITULO");
    LCelula.IDPlano = base::TextoDe(ACelula.Valor("IDPLANO"));
    LCelula.Coluna = ACelula.Coluna->Campo;
    LCelula.Selecionada = ACelula.Selecionada;
    if (EhIdentificacao(LCelula.Coluna))
        LCelula.Texto = ACelula.Texto();
    return LCelula;
}

} // namespace pct04618
