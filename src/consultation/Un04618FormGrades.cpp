#include "base/Texto.h"
#include "consultation/Un04618Form.h"
#include "host/Servicos.h"

#include <map>

namespace pct04618 {

namespace {

constexpr const char* Convite = "Clique no botão \"Selecionar\" para escolher as formas de busca das informações.";
constexpr const char* CaptionAmostra = "aa";

using TAgrupamento = std::map<int, std::string>; // fields by level

TAgrupamento Agrupamento(const host::TGrade& AGrade) {
    TAgrupamento LNiveis;
    for (const auto& LColuna : AGrade.Colunas())
        if (LColuna.Grupo >= 0)
            LNiveis[LColuna.Grupo] = LColuna.Campo;
    return LNiveis;
}

// The grid tells every change of its columns; this one only that of the grouping.
host::TAssinatura AoMudarAgrupamento(host::TGrade& AGrade, std::function<void()> AOuvinte) {
    return AGrade.AoMudar([&AGrade, AOuvinte = std::move(AOuvinte), LAntes = Agrupamento(AGrade)]() mutable {
        if (auto LAgora = Agrupamento(AGrade); LAgora != LAntes) {
            LAntes = std::move(LAgora);
            AOuvinte();
        }
    });
}

} // namespace

void TForm04618::ConfigurarControles() {
    ActAtualizarRealizado.SetCaption("&Atualizar Realizado");
    PnlTitulo.SetCaption(Convite);
    for (auto* LAmostra :
         {&LblCorRecRealizMaiorProj, &LblCorRecRealizMenorProj, &LblCorDespRealizMaiorProj, &LblCorDespRealizMenorProj})
        LAmostra->SetCaption(CaptionAmostra);
    LblRecRealizMaiorProj.SetCaption("Receita realizada > projetada");
    LblRecRealizMenorProj.SetCaption("Receita realizada < projetada");
    LblDespRealizMaiorProj.SetCaption("Despesa realizada > projetada");
    LblDespRealizMenorProj.SetCaption("Despesa realizada < projetada");
    LblLegendaGradeOrcMensal.SetCaption("OBS: Na coluna Ano as letras (B,O,R) referem-se a: B(Valor Base), O(Valor "
                                        "Orçado) e R(Valor Realizado).");
    for (auto* LControle : std::initializer_list<host::TControle*>{&DbgCtbOrcada, &DbgMostraCtbOrcMensal, &PnlLegenda,
                                                                   &PnlLegendaGradeOrcMensal})
        LControle->SetVisible(false);
}

void TForm04618::ConfigurarGrades() {
    DbgCtbOrcada.SetColunas(ColunasDbtvCtbOrcada());
    DbgCtbOrcada.Linhas = LinhasDbtvCtbOrcada();
    for (const auto& [LAmostra, LTexto] : {std::pair{&LblCorRecRealizMaiorProj, &LblRecRealizMaiorProj},
                                           {&LblCorRecRealizMenorProj, &LblRecRealizMenorProj},
                                           {&LblCorDespRealizMaiorProj, &LblDespRealizMaiorProj},
                                           {&LblCorDespRealizMenorProj, &LblDespRealizMenorProj}})
        DbgCtbOrcada.Significados[LAmostra->Fonte()] = LTexto->Caption();
    DbgCtbOrcada.RegraDaCelula = [](const host::TCelula& C) { return AparenciaDaCelula(LerCelulaBalanco(C)); };
    FAssinaturas.push_back(AoMudarAgrupamento(DbgCtbOrcada, [this] { DbtvCtbOrcadaDataControllerGroupingChanged(); }));
    DbgMostraCtbOrcMensal.SetColunas(ColunasDbtvMostraCtbOrcMensal());
    DbgMostraCtbOrcMensal.Linhas = LinhasDbtvMostraCtbOrcMensal();
    DbgMostraCtbOrcMensal.RegraDaCelula = [this](const host::TCelula& C) {
        return AparenciaDaCelula(LerCelulaPeriodos(C, GetDm04618()));
    };
    FAssinaturas.push_back(
        AoMudarAgrupamento(DbgMostraCtbOrcMensal, [this] { DbtvMostraCtbOrcMensalDataControllerGroupingChanged(); }));

    for (auto* LLeiaute : {&GdlConsultarProj, &GdlMostraCtbOrcMensal})
        LLeiaute->IDUsuario = [] { return host::GUtilSistema().GetIDUsuarioLogado(); };
    GdlConsultarProj.SelecaoLeiaute = [](bool APadrao, TColunasGrade& AColunas) {
        if (APadrao)
            AplicarPadraoDbtvCtbOrcada(AColunas);
    };
    GdlMostraCtbOrcMensal.SelecaoLeiaute = [this](bool APadrao, TColunasGrade& AColunas) {
        if (!APadrao)
            return;
        AplicarPadraoDbtvMostraCtbOrcMensal(AColunas);
        if (!GetDm04618().CdsMostraCtbOrcMensal.IsEmpty())
            AColunas = ComOsPeriodos(std::move(AColunas));
    };
}

void TForm04618::InicializarGrades() {
    FAssinaturas.push_back(GetDm04618().CdsMostraCtbOrcada.AoMudarEstado([this] { DsMostraCtbOrcadaStateChange(); }));
    FAssinaturas.push_back(
        GetDm04618().CdsMostraCtbOrcMensal.AoMudarEstado([this] { DsMostraCtbOrcMensalStateChange(); }));
    GdlConsultarProj.CarregarListaDeLeiautes();
    GdlConsultarProj.SetVisaoGradeLeiaute(DbgCtbOrcada);
    GdlMostraCtbOrcMensal.CarregarListaDeLeiautes();
    GdlMostraCtbOrcMensal.SetVisaoGradeLeiaute(DbgMostraCtbOrcMensal);
}

host::TGrade* TForm04618::GradeEmVista() {
    if (DbgCtbOrcada.Visible())
        return &DbgCtbOrcada;
    return DbgMostraCtbOrcMensal.Visible() ? &DbgMostraCtbOrcMensal : nullptr;
}

void TForm04618::EstruturarColGridCtbOrcMensal() {
    DbgMostraCtbOrcMensal.SetColunas(ComOsPeriodos(DbgMostraCtbOrcMensal.Colunas()));
}

TColunasGrade TForm04618::ComOsPeriodos(TColunasGrade AColunas) const {
    const auto& LDm = GetDm04618();
    return EstruturarColunasPeriodo(std::move(AColunas), LDm.CdsMostraCtbOrcMensal, LDm.FPeriodosDeMesmoNome);
}

void TForm04618::AtualizarTituloRelatorio() {
    const auto* LGrade = GradeEmVista();
    if (!LGrade || !LGrade->DataSet()->Active()) {
        PnlTitulo.SetCaption(Convite);
    } else if (!LGrade->DataSet()->IsEmpty()) {
        const auto& LDm = GetDm04618();
        PnlTitulo.SetCaption(base::Format("Visualizando projeção orçamentária de %s a %s",
                                          {LDm.FDataInicio.Texto(), LDm.FDataFim.Texto()}));
    }
}

void TForm04618::ExpandirTableView(const host::TGrade& AView) {
    if (AView.DataSet() && AView.DataSet()->Active())
        AView.ExpandirTudo();
}

} // namespace pct04618
