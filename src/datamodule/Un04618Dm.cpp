#include "datamodule/Un04618Dm.h"

namespace pct04618 {

namespace {

void Papeis(host::TZTSQLDataSet& ADataSet, host::TPapelCampo APapel, std::initializer_list<const char*> ACampos) {
    for (const auto* LCampo : ACampos)
        ADataSet.Papeis[LCampo] = APapel;
}

} // namespace

TDM04618::TDM04618() {
    Conectar({&SdsMostraCtbOrcada, &SdsMostraCtbOrcMensal, &SdsFiliais, &SdsCtbOrcadaInf, &SdsDiario,
              &SdsExcluirCtbOrcadaVlr, &SdsCtbOrcadaVlr});
    for (auto* LProvider : {&DspMostraCtbOrcada, &DspMostraCtbOrcMensal, &DspFiliais, &DspCtbOrcadaInf, &DspDiario,
                            &DspExcluirCtbOrcadaVlr, &DspCtbOrcadaVlr})
        LProvider->PermiteCommandText = true;

    // The texts with which a dataset opens before code gives it one: columns and no rows.
    SdsFiliais.CommandText = "SELECT * FROM SC00_FILIAL WHERE SC00_FILIAL.IDFILIAL <= 0";
    SdsCtbOrcadaInf.CommandText = "SELECT * FROM CO01_CTBORCADAINF WHERE CO01_CTBORCADAINF.IDCTBORCADAINF <= 0";
    SdsExcluirCtbOrcadaVlr.CommandText = "SELECT * FROM CO01_PLANOCFG WHERE CO01_PLANOCFG.IDPLANOCFG <= 0";
    SdsCtbOrcadaVlr.CommandText = "SELECT * FROM CO01_CTBORCADAVLR WHERE CO01_CTBORCADAVLR.IDCTBORCADAINF <= 0";
    SdsMostraCtbOrcMensal.ParamCheck = false;

    using host::TPapelCampo;
    DspCtbOrcadaInf.LocalizaSoPelaChave = true;
    Papeis(SdsCtbOrcadaInf, TPapelCampo::Chave, {"IDCTBORCADAINF"});
    Papeis(SdsCtbOrcadaInf, TPapelCampo::Gravado,
           {"IDEMPRESA", "IDFILIAL", "TPCENARIO", "DATAINICIO", "DATAFIM", "DATAIBALANCOREF", "DATAFBALANCOREF",
            "MESESPROJETADOS", "TPDETALHE", "TPCCUSTO"});
    DspCtbOrcadaVlr.LocalizaSoPelaChave = true;
    Papeis(SdsCtbOrcadaVlr, TPapelCampo::Chave,
           {"IDCTBORCADAINF", "IDEMPRESA", "IDFILIAL", "IDPLANO", "IDPLANOSUB", "IDCENTROCUSTO", "IDDEMACTOT",
            "IDCTBORCADAVLR"}); // the last tells rows of one key apart, which a database may hold
    Papeis(SdsCtbOrcadaVlr, TPapelCampo::Gravado,
           {"TPBASEPROJ", "TPATUALIZBASE", "INDICEATBASE", "TPPROJECAO", "VLRBASE", "VLRORCADO", "PERCORCADO",
            "VLRREALIZADO"});
    CdsCtbOrcadaVlr.SetIndexFieldNames("IDFILIAL;IDPLANO;IDPLANOSUB;IDCENTROCUSTO;IDDEMACTOT");

    CdsMostraCtbOrcada.AfterOpen = [this](host::TDataSet& D) { CdsMostraCtbOrcadaAfterOpen(D); };
    CdsMostraCtbOrcMensal.AfterOpen = [this](host::TDataSet& D) { CdsMostraCtbOrcMensalAfterOpen(D); };
    CdsCtbOrcadaVlr.OnNewRecord = [this](host::TZTClientDataSet&) { CdsCtbOrcadaVlrNewRecord(); };
    DspCtbOrcadaVlr.OnGetTableName = [this](std::string& T) { DspCtbOrcadaVlrGetTableName(T); };
}

TDM04618::~TDM04618() { DataModuleDestroy(); }

void TDM04618::DataModuleDestroy() { CdsMostraCtbOrcMensal.Close(); }

} // namespace pct04618
