#include "shell/com_dlg.h"

#include <algorithm>
#include <iterator>

namespace sudoku {
namespace {

// The platform takes them as numbers.
constexpr std::int32_t kTailleDemande = 76;
constexpr std::int32_t kSansLectureSeule = 0x04;
constexpr std::int32_t kAvecAide = 0x10;
constexpr std::size_t kTampon = 512;  // its last character stays NUL

struct Filtre {
  TexteVue extension, description, motif;
};
constexpr Filtre kFiltres[] = {
    {U"txt", U"Text Files (*.txt)", U"*.txt"},
    {U"mdb", U"Database Files (*.MDB)", U"*.MDB"},
    {U"xls", U"Excel Files (*.xls)", U"*.xls"},
    {U"sud", U"Sudoku Files (*.sud)", U"*.sud"},
};
constexpr Filtre kTousLesFichiers = {U"", U"All Files (*.*)", U"*.*"};

const Filtre& FiltreDe(TexteVue extension) {
  const auto* const trouve =
      std::ranges::find_if(kFiltres, [&](const Filtre& filtre) { return Egal(filtre.extension, extension); });
  return trouve == std::end(kFiltres) ? kTousLesFichiers : *trouve;
}

}  // namespace

Texte CreateFilterString(const std::vector<Texte>& VpFiltres) {
  Texte liste;
  for (const Texte& morceau : VpFiltres) liste += morceau + U'\0';
  if (VpFiltres.size() % 2 != 0) liste += Texte(U"*.*") + U'\0';
  return liste;
}

Texte RemoveNulls(TexteVue VpTexte) {
  return Texte(VpTexte.substr(0, VpTexte.find(U'\0')));
}

void ConvertStruct2Win(const TypFileDlg& record, DemandeFichier& demande) {
  demande = DemandeFichier();
  demande.lStructSize = kTailleDemande;
  demande.lpstrFilter = record.Filter.empty() ? CreateFilterString({U"All Files"}) : record.Filter;
  demande.nFilterIndex = record.FilterIndex;
  demande.lpstrFile.assign(kTampon, U'\0');
  demande.nMaxFile = kTampon - 1;
  demande.lpstrFileTitle.assign(kTampon, U'\0');
  demande.nMaxFileTitle = kTampon - 1;
  demande.lpstrInitialDir = record.InitialDir;
  demande.lpstrTitle = record.DialogTitle;
  demande.Flags = record.Flags;
  demande.lpstrDefExt = record.DefaultExt;
}

void ConvertWin2Struct(const DemandeFichier& demande, TypFileDlg& record) {
  record.FileName = RemoveNulls(demande.lpstrFile);
  record.FileTitle = RemoveNulls(demande.lpstrFileTitle);
  record.FileOffset = demande.nFileOffset;
  record.FileExtension = demande.nFileExtension;
}

Texte ComDlg::GetOpenFile(TexteVue VpDossier, TexteVue VpTitre, TexteVue VpExtension) {
  const Filtre& filtre = FiltreDe(VpExtension);
  TypFileDlg record;
  record.Filter = CreateFilterString({Texte(filtre.description), Texte(filtre.motif)});
  record.InitialDir = VpDossier.empty() ? systeme_.LesFichiers().DossierCourant() : Texte(VpDossier);
  record.DialogTitle = VpTitre;
  record.Flags = kSansLectureSeule | kAvecAide;
  DemandeFichier demande;
  ConvertStruct2Win(record, demande);
  systeme_.Fichier(demande);
  ConvertWin2Struct(demande, record);
  return record.FileName;
}

}  // namespace sudoku
