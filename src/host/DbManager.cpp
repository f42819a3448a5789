#include "host/DbManager.h"

#include "base/Falhas.h"
#include "host/Servicos.h"

namespace host {

std::unique_ptr<TZTClientDataSet> TZTUtilsDbManager::CreateClientDataSetWithConnection(std::string ANome) const {
    return std::make_unique<TZTClientDataSet>(std::move(ANome), ZTConnection().GetSQLConnection());
}

std::unique_ptr<TDataSet> TZTUtilsDbManager::AbrirConsultaSQL(std::string ATexto, std::string ANome) const {
    auto LConsulta = std::make_unique<TZTSQLQuery>(ZTConnection().GetSQLConnection(), std::move(ANome));
    LConsulta->SQL = std::move(ATexto);
    LConsulta->Open();
    return LConsulta;
}

std::vector<std::string> TZTUtilsDbManager::ListaDeCampo(const TDataSet& ADataSet, std::string_view ACampo) const {
    const auto* LCampo = ADataSet.FindField(ACampo);
    if (!LCampo)
        throw base::TFalha("O conjunto de dados " + ADataSet.Nome() + " não tem o campo " + std::string(ACampo) + ".");
    std::vector<std::string> LLista;
    const auto& LColuna = ADataSet.Colunas()[LCampo->Indice()];
    for (std::size_t I = 0; I < ADataSet.RecordCount(); ++I)
        LLista.push_back(base::TextoDe(LColuna.Valor(ADataSet.LinhaDe(I))));
    return LLista;
}

const TZTUtilsDbManager& BuscarInstanciaZTUtilsDbManager() {
    static const TZTUtilsDbManager LInstancia;
    return LInstancia;
}

} // namespace host
