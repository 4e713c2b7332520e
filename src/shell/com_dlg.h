#pragma once

#include <cstdint>
#include <vector>

#include "platform/systeme.h"
#include "storage/game_file.h"
#include "text/texte.h"

namespace sudoku {

// One showing of the file dialog, as this module's callers see it.
struct TypFileDlg {
  Texte Filter;                    // in: description, NUL, pattern, NUL for each pair
  std::int32_t FilterIndex = 0;    // in: which filter is shown first
  Texte InitialDir;                // in
  Texte DialogTitle;               // in: empty for the dialog's own
  Texte DefaultExt;                // in: extension that the dialog adds by itself
  std::int32_t Flags = 0;          // in
  Texte FileName;                  // out: the full path; empty when the user cancelled
  Texte FileTitle;                 // out: the name without folder
  std::int16_t FileOffset = 0;     // out: position of the name in FileName
  std::int16_t FileExtension = 0;  // out: position of the extension
};

// A filter list of descriptions and patterns by turns; a last description without a pattern gets "*.*".
Texte CreateFilterString(const std::vector<Texte>& VpFiltres);
// The text up to its first NUL.
Texte RemoveNulls(TexteVue VpTexte);

// To the platform's request, with buffers for 511 characters, and what it answered back into the record.
void ConvertStruct2Win(const TypFileDlg& record, DemandeFichier& demande);
void ConvertWin2Struct(const DemandeFichier& demande, TypFileDlg& record);

// The program's one file dialog, for loading and saving alike.
class ComDlg : public DialogueFichier {
 public:
  explicit ComDlg(Systeme& systeme) : systeme_(systeme) {}
  // The path chosen, of a file that need not exist; empty when the user cancelled. An empty folder is the
  // current one; the extension chooses the filter and is not added to what the user types.
  Texte GetOpenFile(TexteVue VpDossier, TexteVue VpTitre, TexteVue VpExtension) override;

 private:
  Systeme& systeme_;
};

}  // namespace sudoku
