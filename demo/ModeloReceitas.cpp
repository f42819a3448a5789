#include "demo/Modelo.h"

namespace demo {

namespace {

using enum TNatureza;
using enum TSazonal;

constexpr TModeloConta Contas[] = {
    {"3", "RECEITAS"},
    {"3.1", "RECEITA OPERACIONAL BRUTA"},
    {"3.1.01", "Venda de produtos"},
    {"3.1.01.001", "Móveis residenciais", Venda, -2600, Vendas, -20, "201 202", "12"},
    {"3.1.01.002", "Móveis corporativos", Venda, -1450, Plana, 60, "202 201", "12"},
    {"3.1.01.003", "Estofados", Venda, -980, Vendas, -110, "201 202", "12"},
    {"3.1.01.004", "Exportação de móveis", Venda, -620, Plana, 140, "202", "1"},
    {"3.1.01.005", "Peças e acessórios", Venda, -140, Plana, 15, "201", "12"},
    {"3.1.02", "Prestação de serviços"},
    {"3.1.02.001", "Montagem e instalação", Venda, -180, Vendas, 30, "204", "13"},
    {"3.1.02.002", "Assistência técnica", Venda, -75, Plana, -40, "204", "13"},
    {"3.1.02.003", "Projetos de interiores", Venda, -95, Plana, 80, "203", "13"},
    {"3.1.02.004", "Transporte e armazenagem", Venda, -3300, Vendas, 25, "204", "3"},
    {"3.2", "DEDUÇÕES DA RECEITA"},
    {"3.2.01", "Tributos sobre vendas"},
    {"3.2.01.001", "ICMS sobre vendas", Tributo, 690, Vendas, 0, "201", "12"},
    {"3.2.01.002", "IPI sobre vendas", Tributo, 240, Vendas, 0, "201", "1"},
    {"3.2.01.003", "PIS sobre receitas", Tributo, 60, Vendas, 0, "201", "123"},
    {"3.2.01.004", "COFINS sobre receitas", Tributo, 280, Vendas, 0, "201", "123"},
    {"3.2.01.005", "ISS sobre serviços", Tributo, 17, Plana, 0, "204", "13"},
    {"3.2.02", "Devoluções e abatimentos"},
    {"3.2.02.001", "Devoluções de vendas", Venda, 95, Vendas, 160, "201", "12"},
    {"3.2.02.002", "Abatimentos e descontos incondicionais", Venda, 40, Vendas, 50, "202", "12"},
    {"3.3", "RECEITAS FINANCEIRAS"},
    {"3.3.01", "Rendimentos e juros"},
    {"3.3.01.001", "Rendimentos de aplicações financeiras", Banco, -38, Plana, 120, "302", "123"},
    {"3.3.01.002", "Juros recebidos de clientes", Banco, -12, Plana, -60, "302", "12"},
    {"3.3.01.003", "Descontos obtidos", Banco, -9, Plana, 0, "302", "123"},
    {"3.3.01.004", "Variação cambial ativa", Banco, -15, Plana, -250, "302", "1"},
    {"3.4", "OUTRAS RECEITAS"},
    {"3.4.01", "Receitas eventuais"},
    {"3.4.01.001", "Aluguéis recebidos", Banco, -14, Plana, 0, "301", "1", {}, BaseOriginal},
    {"3.4.01.002", "Venda de sucata e aparas", Banco, -11, Plana, 70, "101", "1"},
    {"3.4.01.003", "Recuperação de despesas", Banco, -6, Plana, 30, "302", "12", {}, SemFinalidade},
};

} // namespace

std::span<const TModeloConta> ContasDeReceita() { return Contas; }

} // namespace demo
