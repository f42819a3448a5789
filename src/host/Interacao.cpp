#include "host/Interacao.h"

#include <stdexcept>

namespace host {

void TInteracao::MostrarRelatorio(const TImpressao& /*AImpressao*/) { throw std::logic_error("no paper for a report"); }

void TInteracao::MostrarImpressaoGrade(const TImpressaoGrade& /*AImpressao*/) {
    throw std::logic_error("no paper for a grid");
}

} // namespace host
