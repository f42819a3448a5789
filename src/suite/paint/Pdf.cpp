#include "suite/paint/PagePaint.h"
#include "suite/paint/Painting.h"

#include <cairo/cairo-pdf.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace suite::paint {

namespace {

constexpr double PointsOfMicrometre = 72.0 / 25'400;

cairo_status_t writeTo(void* stream, const unsigned char* bytes, unsigned int count) {
    auto& out = *static_cast<std::ofstream*>(stream);
    return out.write(reinterpret_cast<const char*>(bytes), count) ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

std::string isoTime(const base::TDataHora& made) {
    const auto seconds = made.Decimos() % base::TDataHora::DecimosPorDia / 10'000;
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", made.Ano(), made.Mes(), made.Dia(),
                  static_cast<int>(seconds / 3600), static_cast<int>(seconds / 60 % 60),
                  static_cast<int>(seconds % 60));
    return text;
}

class PdfFile {
  public:
    PdfFile(const std::filesystem::path& file, const paper::Sheet& sheet, const Document& document)
        : out_(file, std::ios::binary),
          surface_(cairo_pdf_surface_create_for_stream(writeTo, &out_, sheet.width * PointsOfMicrometre,
                                                       sheet.height * PointsOfMicrometre),
                   cairo_surface_destroy),
          on_(cairo_create(surface_.get()), cairo_destroy) {
        cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_TITLE, document.title.c_str());
        cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_SUBJECT, document.subject.c_str());
        cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATOR, document.program.c_str());
        if (!document.made.Vazia())
            cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATE_DATE,
                                           isoTime(document.made).c_str());
        cairo_scale(on_.get(), PointsOfMicrometre, PointsOfMicrometre);
    }

    void add(const paper::Page& page) {
        cairo_pdf_surface_set_page_label(surface_.get(), std::to_string(page.number).c_str());
        paint(on_.get(), page);
        for (const auto& mark : page.marks)
            add(mark, page.number);
        cairo_show_page(on_.get());
        check();
    }

    void finish() {
        cairo_surface_finish(surface_.get());
        check();
        if (!out_.flush())
            throw std::system_error(std::make_error_code(std::errc::io_error));
    }

  private:
    void add(const paper::Mark& mark, int page) {
        const auto depth = static_cast<std::size_t>(std::max(mark.level, 1));
        parents_.resize(std::min(parents_.size(), depth - 1)); // those of this depth and below are over
        const auto parent = parents_.empty() ? CAIRO_PDF_OUTLINE_ROOT : parents_.back();
        char place[64];
        std::snprintf(place, sizeof place, "page=%d pos=[0 %d]", page, static_cast<int>(mark.y * PointsOfMicrometre));
        parents_.push_back(cairo_pdf_surface_add_outline(surface_.get(), parent, mark.caption.c_str(), place,
                                                         parents_.empty() ? CAIRO_PDF_OUTLINE_FLAG_OPEN
                                                                          : cairo_pdf_outline_flags_t{}));
    }
    void check() const {
        const auto status = cairo_surface_status(surface_.get());
        const auto drawn = cairo_status(on_.get());
        if (!out_)
            throw std::system_error(std::make_error_code(std::errc::no_space_on_device));
        if (status != CAIRO_STATUS_SUCCESS || drawn != CAIRO_STATUS_SUCCESS)
            throw std::runtime_error(std::string("the PDF cannot be written: ") +
                                     cairo_status_to_string(status != CAIRO_STATUS_SUCCESS ? status : drawn));
    }

    std::ofstream out_;
    std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface_;
    std::unique_ptr<cairo_t, decltype(&cairo_destroy)> on_;
    std::vector<int> parents_; // entries of the outline around the next one
};

} // namespace

void writePdf(paper::PageSource& pages, const std::filesystem::path& file, const Document& document,
              const std::function<void(int page)>& progress) {
    PdfFile pdf(file, pages.sheet(), document);
    paper::Page page;
    while (pages.next(page)) {
        pdf.add(page);
        if (progress)
            progress(page.number);
    }
    pdf.finish();
}

} // namespace suite::paint
