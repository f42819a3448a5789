#include "host/Leiaute.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "host/Dialogos.h"
#include "host/Servicos.h"

#include <algorithm>
#include <stdexcept>

namespace host {

namespace {

TArmazemLeiautes& Armazem() {
    if (!Servicos().Leiautes)
        throw std::logic_error("no service installed: TArmazemLeiautes");
    return *Servicos().Leiautes;
}

TLeiaute LeiauteDe(const std::vector<TColunaGrade>& AColunas) {
    TLeiaute LLeiaute;
    for (const auto& LColuna : AColunas)
        LLeiaute.Colunas.push_back({LColuna.Campo, LColuna.Visivel, LColuna.Grupo});
    return LLeiaute;
}

// Levels without gaps, in their order, no two alike.
void NumerarGrupos(std::vector<TColunaGrade>& AColunas) {
    std::vector<TColunaGrade*> LAgrupadas;
    for (auto& LColuna : AColunas)
        if (LColuna.Grupo >= 0)
            LAgrupadas.push_back(&LColuna);
    std::stable_sort(LAgrupadas.begin(), LAgrupadas.end(), [](auto* A, auto* B) { return A->Grupo < B->Grupo; });
    int LNivel = 0;
    for (auto* LColuna : LAgrupadas)
        LColuna->Grupo = LNivel++;
}

std::vector<TColunaGrade> Arrumar(std::vector<TColunaGrade> AColunas, const TLeiaute& ALeiaute) {
    std::vector<TColunaGrade> LArrumadas;
    for (const auto& LPedida : ALeiaute.Colunas) {
        const auto LColuna = std::find_if(AColunas.begin(), AColunas.end(),
                                          [&](const TColunaGrade& C) { return C.Campo == LPedida.Campo; });
        if (LColuna == AColunas.end())
            continue;
        LColuna->Visivel = LPedida.Visivel;
        LColuna->Grupo = LPedida.Grupo;
        LArrumadas.push_back(std::move(*LColuna));
        AColunas.erase(LColuna);
    }
    std::move(AColunas.begin(), AColunas.end(), std::back_inserter(LArrumadas));
    return LArrumadas;
}

} // namespace

TDonoLeiautes TZTDbGridDevLeiaute::Dono() const { return {FChaveLeiaute, IDUsuario()}; }

void TZTDbGridDevLeiaute::CarregarListaDeLeiautes() {
    std::vector<std::string> LLeiautes;
    try {
        if (Servicos().Leiautes)
            LLeiautes = Armazem().Listar(Dono());
    } catch (const base::TFalha& LFalha) {
        GZTUtilsDialogs.Erro(LFalha.what());
    }
    Mudar(FLeiautes, std::move(LLeiautes));
}

void TZTDbGridDevLeiaute::SetVisaoGradeLeiaute(TGrade& AGrade) {
    FGrade = &AGrade;
    FPadrao = LeiauteDe(AGrade.Colunas());
    Aplicar(nullptr);
}

void TZTDbGridDevLeiaute::Aplicar(const TLeiaute* ALeiaute) {
    auto LColunas = Arrumar(FGrade->Colunas(), FPadrao);
    if (ALeiaute)
        LColunas = Arrumar(std::move(LColunas), *ALeiaute);
    if (SelecaoLeiaute)
        SelecaoLeiaute(!ALeiaute, LColunas);
    NumerarGrupos(LColunas);
    FGrade->SetColunas(std::move(LColunas));
}

void TZTDbGridDevLeiaute::Escolher(const std::string& ANome) {
    if (ANome.empty()) {
        Aplicar(nullptr);
    } else {
        TLeiaute LLeiaute;
        try {
            LLeiaute = Armazem().Ler(Dono(), ANome);
        } catch (const base::TFalha& LFalha) {
            GZTUtilsDialogs.Erro(LFalha.what());
            return;
        }
        Aplicar(&LLeiaute);
    }
    Mudar(FEscolhido, ANome);
}

void TZTDbGridDevLeiaute::Salvar(const std::string& ANome) {
    const auto LNome = base::Trim(ANome);
    if (LNome.empty())
        throw base::TFalha("Informe o nome do leiaute.");
    Armazem().Gravar(Dono(), LNome, LeiauteDe(FGrade->Colunas()));
    CarregarListaDeLeiautes();
    Mudar(FEscolhido, LNome);
}

void TZTDbGridDevLeiaute::Excluir(const std::string& ANome) {
    Armazem().Excluir(Dono(), ANome);
    CarregarListaDeLeiautes();
    if (FEscolhido == ANome)
        Escolher("");
}

} // namespace host
