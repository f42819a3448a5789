#include "demo/Modelo.h"

namespace demo {

namespace {

using enum TNatureza;
using enum TSazonal;

constexpr TModeloConta Contas[] = {
    {"4", "CUSTOS E DESPESAS"},
    {"4.1", "CUSTOS"},
    {"4.1.01", "Materiais"},
    {"4.1.01.001", "Madeira maciça", Compra, 560, Vendas, 40, "101 103", "1"},
    {"4.1.01.002", "Painéis de MDF", Compra, 430, Vendas, -30, "101", "1"},
    {"4.1.01.003", "Ferragens e puxadores", Compra, 140, Vendas, 10, "101 103", "1"},
    {"4.1.01.004", "Tecidos e espumas", Compra, 185, Vendas, -90, "102", "1"},
    {"4.1.01.005", "Vernizes, tintas e solventes", Compra, 95, Vendas, 55, "103", "1"},
    {"4.1.01.006", "Embalagens", Compra, 78, Vendas, 20, "101 102 103", "12"},
    {"4.1.01.007", "Mercadorias para revenda", Compra, 2450, Vendas, -15, "201", "2"},
    {"4.1.02", "Mão de obra direta"},
    {"4.1.02.001", "Salários da produção", Pessoal, 410, Plana, 5, "101 102 103", "1"},
    {"4.1.02.002", "Horas extras da produção", Pessoal, 36, Vendas, 350, "101 102 103", "1"},
    {"4.1.02.003", "INSS da produção", Pessoal, 118, Plana, 10, "101 102 103", "1"},
    {"4.1.02.004", "FGTS da produção", Pessoal, 34, Plana, 10, "101 102 103", "1"},
    {"4.1.02.005", "Férias e 13º salário da produção", Pessoal, 82, Folha, 0, "101 102 103", "1"},
    {"4.1.02.006", "Vale-transporte e alimentação da produção", Pessoal, 46, Plana, 35, "101 102 103", "1"},
    {"4.1.03", "Custos indiretos de fabricação"},
    {"4.1.03.001", "Energia elétrica da fábrica", Servico, 88, Energia, 180, "101 103", "1"},
    {"4.1.03.002", "Manutenção de máquinas", Servico, 52, Plana, -70, "104", "1", "Mecânica;Elétrica;Pneumática"},
    {"4.1.03.003", "Depreciação de máquinas", Depreciacao, 64, Plana, 0, "101 102", "1", {}, BaseOriginal},
    {"4.1.03.004", "Aluguel de equipamentos", Servico, 18, Plana, 0, "104", "1", {}, BaseOriginal},
    {"4.1.03.005", "Seguros industriais", Servico, 9, Plana, 0, "104", "1", {}, BaseOriginal},
    {"4.1.03.006", "Equipamentos de proteção individual", Compra, 7, Plana, -120, "104", "1"},
    {"4.1.03.007", "Fretes sobre compras", Servico, 31, Vendas, 85, "101", "12"},
    {"4.1.03.008", "Água industrial", Servico, 6, Energia, 25, "103", "1"},
    {"4.1.03.009", "Tratamento de resíduos", Servico, 5, Plana, 300, "103", "1"},
    {"4.1.04", "Custo dos serviços prestados"},
    {"4.1.04.001", "Montadores terceirizados", Servico, 62, Vendas, 45, "204", "13"},
    {"4.1.04.002", "Materiais de montagem", Compra, 14, Vendas, 0, "204", "13"},
    {"4.1.04.003", "Fretes contratados de terceiros", Servico, 1750, Vendas, 30, "204", "3"},
};

} // namespace

std::span<const TModeloConta> ContasDeCusto() { return Contas; }

} // namespace demo
