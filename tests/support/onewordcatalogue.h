#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <wx/arrstr.h>
#include <wx/translation.h>

namespace velmtest {
/// A catalogue of wxWidgets that knows one word; afterwards there is none.
class OneWordCatalogue
{
public:
    OneWordCatalogue(const QByteArray& word, const QByteArray& translation)
    {
        auto* translations = new wxTranslations; // given away to wx
        translations->SetLoader(new Loader(word, translation));
        translations->SetLanguage("de");
        translations->AddCatalog("host");
        wxTranslations::Set(translations);
    }
    ~OneWordCatalogue() { wxTranslations::Set(nullptr); }
    Q_DISABLE_COPY_MOVE(OneWordCatalogue)

private:
    class Loader : public wxTranslationsLoader
    {
    public:
        // Magic, revision, count, offsets of both tables; then length and offset of the word and of its translation.
        Loader(const QByteArray& word, const QByteArray& translation)
        {
            const auto wordSize = static_cast<quint32>(word.size());
            for (const quint32 number : {0x950412deU, 0U, 1U, 28U, 36U, 0U, 0U, wordSize, 44U,
                                         static_cast<quint32>(translation.size()), 45U + wordSize})
                m_data.append(reinterpret_cast<const char*>(&number), sizeof number);
            m_data += word + '\0' + translation + '\0';
        }
        wxMsgCatalog* LoadCatalog(const wxString& domain, const wxString&) override
        {
            return wxMsgCatalog::CreateFromData(
                wxScopedCharBuffer::CreateNonOwned(m_data.constData(), static_cast<std::size_t>(m_data.size())),
                domain);
        }
        wxArrayString GetAvailableTranslations(const wxString&) const override
        {
            wxArrayString languages;
            languages.Add("de");
            return languages;
        }

    private:
        QByteArray m_data;
    };
};
} // namespace velmtest
