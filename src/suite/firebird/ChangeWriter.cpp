#include "suite/firebird/ChangeWriter.h"

#include "base/Falhas.h"
#include "host/DataSet.h"
#include "suite/firebird/Statement.h"
#include "suite/firebird/Transaction.h"

#include <optional>

namespace suite::firebird {

namespace {

class Writer {
  public:
    Writer(Transaction& transaction, const host::TZTClientDataSet& dataSet)
        : transaction_(transaction), dataSet_(dataSet) {
        if (const auto* provider = dataSet.Provider()) {
            if (provider->OnGetTableName)
                provider->OnGetTableName(table_);
            roles_ = &provider->DataSet().Papeis;
        }
        if (table_.empty() || !roles_ || roles_->empty() || !dataSet.Provider()->LocalizaSoPelaChave)
            throw base::TFalha("O conjunto de dados " + dataSet.Nome() + " não pode ser gravado.");
    }

    void write(std::size_t row, const host::TAlteracao& change) {
        if (change.Inserida)
            insert(row);
        else
            update(row, change.Antes);
    }

  private:
    using Columns = std::vector<std::size_t>;

    const host::TColuna& column(std::size_t i) const { return dataSet_.Colunas()[i]; }
    const std::string& name(std::size_t i) const { return column(i).Descricao().Nome; }
    std::optional<host::TPapelCampo> role(std::size_t i) const {
        const auto found = roles_->find(name(i));
        return found == roles_->end() ? std::nullopt : std::optional(found->second);
    }

    void insert(std::size_t row) {
        Columns written;
        for (std::size_t i = 0; i < dataSet_.Colunas().size(); ++i)
            if (column(i).Descricao().Tabela == table_ && !column(i).Nulo(row))
                written.push_back(i);
        std::string names;
        std::string marks;
        for (const auto i : written) {
            names += (names.empty() ? "" : ", ") + name(i);
            marks += marks.empty() ? "?" : ", ?";
        }
        run("INSERT INTO " + table_ + " (" + names + ") VALUES (" + marks + ")", written, row);
    }

    void update(std::size_t row, const std::vector<base::TValor>& before) {
        Columns parameters;
        std::string assignments;
        for (std::size_t i = 0; i < before.size(); ++i)
            if (role(i) == host::TPapelCampo::Gravado && column(i).Comparar(row, before[i]) != 0) {
                parameters.push_back(i);
                assignments += (assignments.empty() ? "" : ", ") + name(i) + " = ?";
            }
        if (parameters.empty())
            return;
        std::string condition;
        for (std::size_t i = 0; i < before.size(); ++i)
            if (role(i) == host::TPapelCampo::Chave) {
                parameters.push_back(i);
                condition += (condition.empty() ? "" : " AND ") + name(i) + " IS NOT DISTINCT FROM ?";
            }
        const auto affected = run("UPDATE " + table_ + " SET " + assignments + " WHERE " + condition, parameters, row);
        if (affected != 1)
            throw base::TFalha(affected == 0
                                   ? "Um registro de " + table_ + " foi excluído por outro usuário; nada foi gravado."
                                   : "Um registro de " + table_ + " tem a chave repetida no banco; nada foi gravado.");
    }

    std::uint64_t run(const std::string& text, const Columns& columns, std::size_t row) {
        if (text != text_) { // rows of one kind come in runs
            text_ = text;
            statement_.emplace(transaction_, text, "gravação de " + dataSet_.Nome());
            std::vector<std::string> labels;
            for (const auto i : columns)
                labels.push_back(table_ + "." + name(i));
            statement_->nameParameters(std::move(labels));
        }
        std::vector<base::TValor> values;
        for (const auto i : columns)
            values.push_back(column(i).Valor(row));
        statement_->execute(transaction_, values);
        return statement_->affectedRows();
    }

    Transaction& transaction_;
    const host::TZTClientDataSet& dataSet_;
    std::string table_;
    const std::map<std::string, host::TPapelCampo, std::less<>>* roles_ = nullptr;
    std::string text_;
    std::optional<Statement> statement_;
};

} // namespace

void writeChanges(Transaction& transaction, const host::TZTClientDataSet& dataSet) {
    if (dataSet.Alteracoes().empty())
        return;
    Writer writer(transaction, dataSet);
    for (const auto& [row, change] : dataSet.Alteracoes())
        writer.write(row, change);
}

} // namespace suite::firebird
