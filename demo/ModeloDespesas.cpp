#include "demo/Modelo.h"

namespace demo {

namespace {

using enum TNatureza;
using enum TSazonal;

constexpr TModeloConta Contas[] = {
    {"4.2", "DESPESAS COMERCIAIS"},
    {"4.2.01", "Pessoal comercial"},
    {"4.2.01.001", "Salários comerciais", Pessoal, 96, Plana, 10, "201 203 204", "123"},
    {"4.2.01.002", "Encargos sociais comerciais", Pessoal, 34, Plana, 10, "201 203 204", "123"},
    {"4.2.01.003", "Férias e 13º salário comerciais", Pessoal, 17, Folha, 0, "201 203 204", "123"},
    {"4.2.01.004", "Benefícios comerciais", Pessoal, 12, Plana, -25, "201 203 204", "123"},
    {"4.2.02", "Promoção de vendas"},
    {"4.2.02.001", "Comissões de representantes", Servico, 148, Vendas, 20, "202", "12"},
    {"4.2.02.002", "Amostras e mostruários", Compra, 16, Feiras, -80, "202 203", "12"},
    {"4.2.02.003", "Feiras e exposições", Servico, 22, Feiras, 110, "203", "12", "Estande;Passagens e hospedagem",
     Informado},
    {"4.2.03", "Propaganda e publicidade"},
    {"4.2.03.001", "Campanhas publicitárias", Servico, 74, Vendas, -150, "203", "123",
     "Mídia digital;Televisão e rádio;Revistas e catálogos", Informado},
    {"4.2.03.002", "Brindes e promoções", Compra, 18, Vendas, -60, "203", "12"},
    {"4.2.03.003", "Patrocínios culturais", Servico, 6, Trimestral, 0, "203", "1", {}, Informado | SemFinalidade},
    {"4.2.04", "Logística"},
    {"4.2.04.001", "Fretes sobre vendas", Servico, 165, Vendas, 120, "204", "12"},
    {"4.2.04.002", "Combustíveis e lubrificantes", Compra, 28, Plana, 90, "204", "123"},
    {"4.2.04.003", "Manutenção de veículos", Servico, 14, Plana, 40, "204", "123"},
    {"4.2.04.004", "Pedágios", Servico, 9, Plana, 0, "204", "123"},
    {"4.2.04.005", "Seguros de carga", Servico, 6, Plana, 0, "204", "13", {}, BaseOriginal},
    {"4.3", "DESPESAS ADMINISTRATIVAS"},
    {"4.3.01", "Pessoal administrativo"},
    {"4.3.01.001", "Salários administrativos", Pessoal, 142, Plana, 0, "302 303 304", "123"},
    {"4.3.01.002", "Pró-labore da diretoria", Pessoal, 48, Plana, 0, "301", "1", {}, BaseOriginal},
    {"4.3.01.003", "Encargos sociais administrativos", Pessoal, 62, Plana, 0, "301 302 303", "123"},
    {"4.3.01.004", "Férias e 13º salário administrativos", Pessoal, 26, Folha, 0, "302 303 304", "123"},
    {"4.3.01.005", "Benefícios administrativos", Pessoal, 21, Plana, 30, "302 303 304", "123"},
    {"4.3.01.006", "Treinamento e capacitação", Servico, 8, Plana, -450, "303", "12", {}, Informado},
    {"4.3.02", "Ocupação"},
    {"4.3.02.001", "Aluguéis de imóveis", Servico, 44, Plana, 0, "301 302", "123", {}, BaseOriginal},
    {"4.3.02.002", "Condomínio", Servico, 6, Plana, 15, "302", "12"},
    {"4.3.02.003", "Energia elétrica dos escritórios", Servico, 11, Energia, 95, "302 304", "123"},
    {"4.3.02.004", "Água e esgoto", Servico, 4, Energia, 20, "302", "123"},
    {"4.3.02.005", "Limpeza de caixa d'água e reservatórios", Servico, 2, Trimestral, 0, "302", "12"},
    {"4.3.02.006", "Limpeza e conservação", Servico, 9, Plana, 0, "302", "123", "Mão de obra;Material de limpeza"},
    {"4.3.03", "Serviços de terceiros"},
    {"4.3.03.001", "Auditoria e contabilidade", Servico, 14, Plana, 0, "302", "123", {}, BaseOriginal},
    {"4.3.03.002", "Honorários advocatícios", Servico, 12, Plana, 210, "301", "12"},
    {"4.3.03.003", "Consultorias", Servico, 20, Plana, -180, "301 303", "1", "Gestão;Tributária;Ambiental", Informado},
    {"4.3.03.004", "Vigilância patrimonial", Servico, 13, Plana, 0, "302", "123"},
    {"4.3.03.005", "Medicina do trabalho", Servico, 4, Plana, 0, "303", "123"},
    {"4.3.04", "Tecnologia da informação"},
    {"4.3.04.001", "Licenças de programas", Servico, 22, Plana, 60, "304", "123"},
    {"4.3.04.002", "Hospedagem e computação em nuvem", Servico, 9, Plana, 250, "304", "12"},
    {"4.3.04.003", "Manutenção de computadores", Servico, 5, Plana, -40, "304", "123"},
    {"4.3.04.004", "Telefonia e internet", Servico, 8, Plana, -50, "304", "123",
     "Telefonia fixa;Telefonia móvel;Internet"},
    {"4.3.05", "Despesas gerais"},
    {"4.3.05.001", "Material de escritório", Compra, 3, Plana, 25, "302 303", "123"},
    {"4.3.05.002", "Viagens e estadias", Servico, 17, Plana, -300, "301 201", "12", "Passagens;Hospedagem;Alimentação",
     Informado},
    {"4.3.05.003", "Correios e malotes", Servico, 2, Plana, 0, "302", "123"},
    {"4.3.05.004", "Copa e cozinha", Compra, 3, Plana, 45, "303", "123"},
    {"4.3.05.005", "Despesas de cartório", Servico, 1, Plana, 0, "301", "12", {}, SemFinalidade},
    {"4.3.05.006", "Contribuições a associações de classe", Servico, 2, Trimestral, 0, "301", "1"},
    {"4.3.06", "Depreciações e amortizações"},
    {"4.3.06.001", "Depreciação de móveis e utensílios", Depreciacao, 7, Plana, 0, "302", "123", {}, BaseOriginal},
    {"4.3.06.002", "Depreciação de veículos", Depreciacao, 16, Plana, 0, "204", "123", {}, BaseOriginal},
    {"4.3.06.003", "Amortização de programas de computador", Depreciacao, 5, Plana, 0, "304", "1", {}, BaseOriginal},
    {"4.4", "DESPESAS FINANCEIRAS"},
    {"4.4.01", "Juros e encargos"},
    {"4.4.01.001", "Juros sobre empréstimos", Banco, 58, Plana, 75, "302", "123"},
    {"4.4.01.002", "Tarifas bancárias", Banco, 7, Plana, 0, "302", "123"},
    {"4.4.01.003", "IOF", Banco, 4, Plana, 35, "302", "12"},
    {"4.4.01.004", "Descontos concedidos", Banco, 12, Vendas, 50, "302 201", "12"},
    {"4.4.01.005", "Variação cambial passiva", Banco, 11, Plana, 280, "302", "1"},
    {"4.4.01.006", "Multas e juros de mora", Banco, 2, Plana, 0, "302", "123", {}, SemOrcamento},
    {"4.5", "DESPESAS TRIBUTÁRIAS"},
    {"4.5.01", "Impostos, taxas e contribuições"},
    {"4.5.01.001", "IPTU", Tributo, 9, InicioDoAno, 0, "302", "123"},
    {"4.5.01.002", "IPVA e licenciamentos", Tributo, 3, InicioDoAno, 0, "204", "123"},
    {"4.5.01.003", "Taxas municipais e estaduais", Tributo, 2, Plana, 30, "302", "123"},
    {"4.6", "OUTRAS DESPESAS"},
    {"4.6.01", "Perdas e contingências"},
    {"4.6.01.001", "Perdas com clientes", Provisao, 16, Plana, -65, "302", "12"},
    {"4.6.01.002", "Doações", Servico, 3, Trimestral, 0, "301", "1"},
    {"4.6.01.003", "Provisão para contingências", Provisao, 10, Plana, -1000, {}, "1", {}, Informado},
    {"4.6.01.004", "Perdas na baixa de imobilizado", Provisao, 8, Trimestral, 0, "302", "1", {}, SemOrcamento},
    {"4.7", "IMPOSTO DE RENDA E CONTRIBUIÇÃO SOCIAL"},
    {"4.7.01", "Tributos sobre o lucro"},
    {"4.7.01.001", "Imposto de renda pessoa jurídica", Tributo, 75, Trimestral, -35, "302", "123", {}, Informado},
    {"4.7.01.002",
     "Contribuição social sobre o lucro líquido",
     Tributo,
     30,
     Trimestral,
     -35,
     "302",
     "123",
     {},
     Informado},
};

// Accounts without a parent chain below them: values reach them by discharge alone.
constexpr TModeloConta Gerenciais[] = {
    {"5", "RESULTADO DO EXERCÍCIO"},
    {"6", "CONTAS GERENCIAIS"},
    {"6.1", "Depreciações e amortizações do período"},
    {"6.2", "Gastos com pessoal"},
};

constexpr TDescarga TodasAsDescargas[] = {
    {"3", "5"},        {"4", "5"},
    {"4.1.02", "6.2"}, {"4.2.01", "6.2"},
    {"4.3.01", "6.2"}, {"4.1.03.003", "6.1"},
    {"4.3.06", "6.1"}, {"3.4.01.002", "3.4.01"}, // both links to one account are one way
};

} // namespace

std::span<const TModeloConta> ContasDeDespesa() { return Contas; }
std::span<const TModeloConta> ContasGerenciais() { return Gerenciais; }
std::span<const TDescarga> Descargas() { return TodasAsDescargas; }

} // namespace demo
