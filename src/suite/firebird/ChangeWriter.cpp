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
    using Values = std::vector<base::TValor>;

    const host::TColuna& column(std::size_t i) const { return dataSet_.Colunas()[i]; }
    const std::string& name(std::size_t i) const { return column(i).Descricao().Nome; }
    std::optional<host::TPapelCampo> role(std::size_t i) const {
        const auto found = roles_->find(name(i));
        return found == roles_->end() ? std::nullopt : std::optional(found->second);
    }

    void insert(std::size_t row) {
        Columns written;
        Values values;
        std::string names;
        std::string marks;
        for (std::size_t i = 0; i < dataSet_.Colunas().size(); ++i)
            if (column(i).Descricao().Tabela == table_ && !column(i).Nulo(row)) {
                written.push_back(i);
                values.push_back(column(i).Valor(row));
                names += (names.empty() ? "" : ", ") + name(i);
                marks += marks.empty() ? "?" : ", ?";
            }
        run("INSERT INTO " + table_ + " (" + names + ") VALUES (" + marks + ")", written, values);
    }

    // Finds the row by the key that it had.
    void update(std::size_t row, const Values& before) {
        Columns parameters;
        Values values;
        std::string assignments;
        for (std::size_t i = 0; i < before.size(); ++i)
            if (role(i) && column(i).Comparar(row, before[i]) != 0) {
                parameters.push_back(i);
                values.push_back(column(i).Valor(row));
                assignments += (assignments.empty() ? "" : ", ") + name(i) + " = ?";
            }
        if (parameters.empty())
            return;
        std::string condition;
        for (std::size_t i = 0; i < before.size(); ++i)
            if (role(i) == host::TPapelCampo::Chave) {
                parameters.push_back(i);
                values.push_back(before[i]);
                condition += (condition.empty() ? "" : " AND ") + name(i) + " IS NOT DISTINCT FROM ?";
            }
        const auto affected =
            run("UPDATE " + table_ + " SET " + assignments + " WHERE " + condition, parameters, values);
        if (affected != 1)
            throw base::TFalha(affected == 0
                                   ? "Um registro de " + table_ + " foi excluído por outro usuário; nada foi gravado."
                                   : "Um registro de " + table_ + " tem a chave repetida no banco; nada foi gravado.");
    }

    std::uint64_t run(const std::string& text, const Columns& columns, const Values& values) {
        if (text != text_) { // rows of one kind come in runs
            text_ = text;
            statement_.emplace(transaction_, text, "gravação de " + dataSet_.Nome());
            std::vector<std::string> labels;
            for (const auto i : columns)
                labels.push_back(table_ + "." + name(i));
            statement_->nameParameters(std::move(labels));
        }
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
