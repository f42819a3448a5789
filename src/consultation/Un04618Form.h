#pragma once

#include "actuals/Un04618FormAtualizarRealizado.h"
#include "consultation/EstruturaGrades.h"
#include "consultation/RegrasCelulas.h"
#include "datamodule/Un04618Dm.h"
#include "host/Leiaute.h"
#include "selection/Un04618FormSelecao.h"

#include <memory>

namespace pct04618 {

// The module's only window towards the host. It owns the query module and the dialogs, runs a selection and decides
// what is in view after it: one of two grids that lie on top of one another, or none, with legend and title. Between
// two selections it remembers nothing: all that stays lies in the query module and in the dialog's controls.
class TForm04618 final : public host::TFormZTTandorPadraoSelecao {
  public:
    TForm04618();
    ~TForm04618() override;

    // The entry into the module: makes the query module for the logged company, and sets up the grids. Nothing has been
    // asked of the user.
    void InitializeForm() override;
    TDM04618& GetDm04618() const;                              // after InitializeForm
    TForm04618Selecao& GetFormSelecao();                       // built when first asked for
    TForm04618AtualizarRealizado& GetFormAtualizarRealizado(); // likewise

    // Asks for a selection, runs it and shows its result. From ActAtualizarRealizado nobody is asked: the selection is
    // that of the query module, and an abort of its validation passes.
    void ActSelecionarExecute(host::TControle* ASender) override;
    // The report of the mode in view, or a message where there is nothing to print.
    void Imprimir() override;
    void ActImprimirGradeExecute() override; // the picture of the grid in view
    host::TGrade* GradeEmVista() override;
    std::string DescreverUltimaAtualizacao() const override;
    std::vector<host::TCriterio> Criterios() const override;

  private:
    void ExecutarSelecao(host::TControle* ASender);
    void MostrarResultado();
    void ActAtualizarRealizadoExecute();
    void FormDestroy();

    // Printing (Un04618FormImpressao.cpp)
    template <typename TRelatorio> void ImprimirRelatorio(TRelatorio& ARelatorio);
    void ImprimirRelatorioBalanco();
    void ImprimirRelatorioPeriodos();
    void ImprimirRelatorioMatricial();
    void ImprimirRelatorioRazaoTot();

    // Grids and what stands around them (Un04618FormGrades.cpp)
    void ConfigurarControles();
    void ConfigurarGrades();
    void InicializarGrades();
    void EstruturarColGridCtbOrcMensal();
    TColunasGrade ComOsPeriodos(TColunasGrade AColunas) const;
    void AtualizarTituloRelatorio();
    void ExpandirTableView(const host::TGrade& AView);
    void DbtvCtbOrcadaDataControllerGroupingChanged() { ExpandirTableView(DbgCtbOrcada); }
    void DsMostraCtbOrcadaStateChange() { ExpandirTableView(DbgCtbOrcada); }
    void DbtvMostraCtbOrcMensalDataControllerGroupingChanged() { ExpandirTableView(DbgMostraCtbOrcMensal); }
    void DsMostraCtbOrcMensalStateChange() { ExpandirTableView(DbgMostraCtbOrcMensal); }

    host::TDataSource DsMostraCtbOrcada{"DsMostraCtbOrcada"};
    host::TDataSource DsMostraCtbOrcMensal{"DsMostraCtbOrcMensal"};
    std::unique_ptr<TForm04618Selecao> FFormSelecao;
    std::unique_ptr<TForm04618AtualizarRealizado> FFormAtualizarRealizado;
    std::vector<host::TAssinatura> FAssinaturas;

    host::TAction ActAtualizarRealizado;
    host::TPanel PnlTitulo{"PnlTitulo"};
    host::TPanel PnlGrades{"PnlGrades"};
    host::TGrade DbgCtbOrcada{"DbgCtbOrcada", DsMostraCtbOrcada};
    host::TGrade DbgMostraCtbOrcMensal{"DbgMostraCtbOrcMensal", DsMostraCtbOrcMensal};
    host::TZTDbGridDevLeiaute GdlConsultarProj{"GdlConsultarProj", "{41C1427C-BDE7-4E49-B46D-FDD8B0A9C9B3}"};
    host::TZTDbGridDevLeiaute GdlMostraCtbOrcMensal{"GdlMostraCtbOrcMensal", "{08472431-F450-4497-9C51-C88301BD20AD}"};
    host::TPanel PnlLegenda{"PnlLegenda"};
    host::TLabelColorido LblCorRecRealizMaiorProj{"LblCorRecRealizMaiorProj", cores::Azul, cores::Azul};
    host::TLabel LblRecRealizMaiorProj{"LblRecRealizMaiorProj"};
    host::TLabelColorido LblCorRecRealizMenorProj{"LblCorRecRealizMenorProj", cores::Vermelho, cores::Vermelho};
    host::TLabel LblRecRealizMenorProj{"LblRecRealizMenorProj"};
    host::TLabelColorido LblCorDespRealizMaiorProj{"LblCorDespRealizMaiorProj", cores::Roxo, cores::Roxo};
    host::TLabel LblDespRealizMaiorProj{"LblDespRealizMaiorProj"};
    host::TLabelColorido LblCorDespRealizMenorProj{"LblCorDespRealizMenorProj", cores::VerdeAzulado,
                                                   cores::VerdeAzulado};
    host::TLabel LblDespRealizMenorProj{"LblDespRealizMenorProj"};
    host::TPanel PnlLegendaGradeOrcMensal{"PnlLegendaGradeOrcMensal"};
    host::TLabelColorido LblLegendaGradeOrcMensal{"LblLegendaGradeOrcMensal", cores::VerdeAzulado};
};

} // namespace pct04618
