#include "demo/Historicos.h"

#include "demo/Periodo.h"

#include <array>

namespace demo {

namespace {

constexpr std::string_view Clientes[] = {
    "Casa Três Marés Decorações", "Móveis Sant'Ana Ltda.", "Hotel Praia do Coqueirão", "Lojas Nova Ordem",
    "Construtora Pôr do Sol",     "Colégio Água Viva",     "Rede Bom Lar do Sertão",   "Escritórios Atlântida",
    "Pousada Serra Azul",         "Hospital São Benedito", "Magazine Estação Norte",   "Condomínio Jardim das Acácias",
};

// Names that may supply anything, since any of them may stand beside any account.
constexpr std::string_view Fornecedores[] = {
    "Comercial Três Pinheiros", "Atacado Paraná Verde",  "Irmãos Conceição & Cia.", "Distribuidora Cristalina",
    "Armazém Conforto Mineiro", "Casa Flor de Lã Ltda.", "Comercial Itaguaçu",      "Comercial Céu Aberto",
};

constexpr std::string_view Prestadores[] = {
    "Iguaçu Serviços Ltda.", "Simões & Irmãos Ltda.", "Visão Clara S.A.", "Planalto Serviços S.A.",
    "Ponto Certo Ltda.",     "Céu Azul Ltda.",        "Araçá Serviços",   "Guardiã do Vale Ltda.",
};

template <std::size_t N>
std::string Um(const std::string_view (&ALista)[N], std::uint64_t ASorteio) {
    return std::string(ALista[ASorteio % N]);
}

std::string Numero(std::uint64_t ASorteio) { return std::to_string(10'000 + ASorteio % 89'999); }

} // namespace

const TModoLancamento& ModoLancamento(TNatureza ANatureza) {
    static constexpr TModoLancamento LVenda{Faturamento, 4, "1.1.03.001", false};
    static constexpr TModoLancamento LServico{Compras, 2, "2.1.01.002", false};
    static constexpr TModoLancamento LCompra{Compras, 3, "2.1.01.001", false};
    static constexpr TModoLancamento LPessoal{FolhaPagamento, 1, "2.1.03.001", true};
    static constexpr TModoLancamento LTributo{Fiscal, 1, "2.1.04.001", true};
    static constexpr TModoLancamento LDepreciacao{Manual, 1, "1.2.04.001", true};
    static constexpr TModoLancamento LProvisao{Manual, 1, "2.1.05.002", true};
    static constexpr TModoLancamento LInvestimento{Compras, 1, "1.1.01.003", false};
    static constexpr TModoLancamento LBanco{Tesouraria, 2, "1.1.01.003", false};
    switch (ANatureza) {
    case TNatureza::Venda:
        return LVenda;
    case TNatureza::Servico:
        return LServico;
    case TNatureza::Compra:
        return LCompra;
    case TNatureza::Pessoal:
        return LPessoal;
    case TNatureza::Tributo:
        return LTributo;
    case TNatureza::Depreciacao:
        return LDepreciacao;
    case TNatureza::Provisao:
        return LProvisao;
    case TNatureza::Investimento:
        return LInvestimento;
    default:
        return LBanco;
    }
}

std::string Historico(TNatureza ANatureza, const std::string& AConta, bool ADebito, int AMes, std::uint64_t ASorteio) {
    const auto LMes = Competencia(AMes);
    switch (ANatureza) {
    case TNatureza::Venda:
        return ADebito ? "NF-e " + Numero(ASorteio) + " - " + AConta + " - " + Um(Clientes, ASorteio >> 20)
                       : "NF-e " + Numero(ASorteio) + " - venda - " + AConta + " - " + Um(Clientes, ASorteio >> 20);
    case TNatureza::Servico:
        return "NFS-e " + Numero(ASorteio) + " - " + AConta + " - " + Um(Prestadores, ASorteio >> 20);
    case TNatureza::Compra:
        return "NF " + Numero(ASorteio) + " - fornecimento de " + AConta + " - " + Um(Fornecedores, ASorteio >> 20);
    case TNatureza::Pessoal:
        return "Folha de pagamento " + LMes + " - " + AConta;
    case TNatureza::Tributo:
        return "Apuração " + LMes + " - " + AConta;
    case TNatureza::Depreciacao:
        return "Quota mensal " + LMes + " - " + AConta;
    case TNatureza::Provisao:
        return "Reconhecimento " + LMes + " - " + AConta;
    case TNatureza::Investimento:
        return "NF " + Numero(ASorteio) + " - aquisição - " + AConta;
    default:
        return "Extrato bancário " + LMes + " - " + AConta;
    }
}

std::string HistoricoLongo(const std::string& AConta) {
    std::string LTexto = "Contrato 45/2023 - " + AConta + " - pagamento das medições do período:";
    for (int LMedicao = 1; LMedicao <= 12; ++LMedicao)
        LTexto += " medição " + std::to_string(LMedicao) + " aprovada pela diretoria em reunião ordinária;";
    return LTexto + " conforme relatório anexo ao processo.";
}

} // namespace demo
