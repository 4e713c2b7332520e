#include "lot/html.h"

#include <cstdio>

#include "text/texte.h"

namespace sudoku::lot {
namespace {

constexpr std::string_view kPageAvant = R"page(<!DOCTYPE html>
<html lang="fr">
<head>
<meta charset="utf-8"/>
<meta name="viewport" content="width=device-width, initial-scale=1"/>
<title>De la grille à la solution</title>
<style>
:root{--fond:#fff;--encre:#111;--doux:#555;--filet:#999;--donnee:#ddd;--vert:#8f8;--cyan:#8ff;--bleu:#0000c8;--lien:#0645ad;--cadre:#d33}
@media screen and (prefers-color-scheme:dark){:root{--fond:#16181b;--encre:#eee;--doux:#aaa;--filet:#777;--donnee:#3a3d42;--vert:#0a6b0a;--cyan:#066f78;--bleu:#9ab4ff;--lien:#8ab4f8;--cadre:#ff8080}}
body{background:var(--fond);color:var(--encre);font:1rem/1.45 "Liberation Sans",Arial,sans-serif;margin:0 auto;max-width:72rem;padding:1rem}
a{color:var(--lien)}
h2{border-top:2px solid var(--filet);margin-top:2.5rem;padding-top:1rem}
h3{font-size:1.05rem;margin:.2rem 0}
.etape{display:flex;flex-wrap:wrap;gap:.4rem 1.6rem;margin:1.2rem 0}
.etape h3{flex:0 0 100%}
.cadre{flex:0 1 auto;max-width:100%;overflow:auto}
.etape ul{flex:1 1 18rem;margin:0;padding-left:1.2rem}
.etape ul ul{color:var(--doux)}
svg{display:block}
text{font:14px "Liberation Sans",Arial,sans-serif;text-anchor:middle;fill:var(--encre)}
text.n{font-weight:bold}
text.p{fill:var(--bleu);font-style:italic}
rect.f{fill:var(--fond)}
rect.d{fill:var(--donnee)}
rect.s{fill:var(--vert)}
rect.q{fill:var(--cyan)}
path.l{fill:none;stroke:var(--filet);stroke-width:.7}
path.g{fill:none;stroke:var(--encre);stroke-width:2}
rect.c{fill:none;stroke:var(--cadre);stroke-width:2.2}
rect.u{fill:none;stroke:var(--cadre);stroke-width:2.2;stroke-dasharray:5 3}
div.branche{border-left:4px solid var(--cyan);margin:1rem 0;padding-left:.8rem}
.branche .branche{padding-left:.4rem}
details{margin:.5rem 0}
summary{cursor:pointer}
details[open]>summary{margin-bottom:.5rem}
details.repli{border-left:4px dotted var(--filet);padding-left:.8rem}
.sommaire ol{columns:16rem;list-style:none;padding:0}
.legende span{border:1px solid var(--filet);display:inline-block;height:1em;margin:0 .3em 0 1em;vertical-align:middle;width:1em}
.fin{font-weight:bold}
@media print{
@page{size:A4;margin:14mm}
body{font-size:10pt;max-width:none;padding:0}
.etape{break-inside:avoid;display:block;margin:0 0 6mm;overflow:hidden}
.cadre{float:left;margin:1mm 6mm 2mm 0;overflow:visible}
.cadre svg{height:auto!important;max-height:150mm;max-width:170mm;min-width:0!important;width:var(--papier)!important}
.etape ul{margin:0;overflow:hidden}
h2,h3{break-after:avoid}
a{color:inherit;text-decoration:none}
.sommaire,.etape .lien{display:none}
}
</style>
</head>
<body>
<main>
<h1>De la grille à la solution</h1>
<p class="legende">Cases remplies à cette étape :
<span style="background:var(--vert)">&#160;</span>prouvées
<span style="background:var(--cyan)">&#160;</span>si ce qui est supposé est juste.
<span style="background:var(--donnee)">&#160;</span>Données. <i style="color:var(--bleu)">En bleu penché</i>, ce qui n'est pas
prouvé.</p>
)page";

bool HorsPage(char32_t c) {
  return (c >= 0x80 && c < 0xA0) || (c & 0xFFFE) == 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF);
}

}  // namespace

std::string Html(std::string_view utf8) {
  std::string html;
  for (const char32_t c : DepuisUtf8(utf8)) {
    if (c == U'&') {
      html += "&amp;";
    } else if (c == U'<') {
      html += "&lt;";
    } else if (c == U'>') {
      html += "&gt;";
    } else if (c == U'"') {
      html += "&quot;";
    } else if (c == U'\'') {
      html += "&#39;";
    } else if (HorsPage(c)) {
      char code[16];
      std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(c));
      html += code;
    } else {
      // Unicode has a picture for each control character of ASCII.
      const char32_t signe = c < 0x20 ? 0x2400 + c : c == 0x7F ? U'\u2421' : c;
      html += VersUtf8(TexteVue(&signe, 1));
    }
  }
  return html;
}

std::string_view PageAvant() {
  return kPageAvant;
}

std::string_view PageApres() {
  return "</main>\n</body>\n</html>\n";
}

}  // namespace sudoku::lot
