// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <QDialog>
#include <QFileDialog>
#include <QPageLayout>
#include <QPrintPreviewWidget>

#include "sheet/html.h"
#include "ui/parts/sheet_pages.h"
#include "ui_fixture.h"

namespace tarnwick {

struct SheetTest : WindowTest {
  /// Works the sheet's window, and the dialog that its action `save` opens.
  void SaveSheet(const QString& save, const std::filesystem::path& file) {
    OnDialog([this, save, file] {
      auto& form = Find<QDialog>("SheetForm");
      pages_ = form.findChild<QPrintPreviewWidget*>()->pageCount();
      OnDialog([this, file] {
        auto& dialog = Find<QFileDialog>("SaveSheetForm");
        suggested_ = dialog.selectedFiles().value(0);
        Enter("fileNameEdit", QString::fromStdString(file.string()));
        Press(Qt::Key_Return);
      });
      Click(save);
      form.reject();
    });
    Press(Qt::Key_P, Qt::ControlModifier);
  }
  std::string Start(const char* file) const { return Folder.Read(file).substr(0, 5); }

  int pages_ = 0;
  QString suggested_;
};

TEST_F(SheetTest, IsShownAndSavedAndLeavesTheArmyAlone) {
  LoadTrebia();
  const auto state = [this] { return std::pair(Work, Find("UndoBtn").toolTip()); };
  const auto before = state();
  SaveSheet("SavePdf", Folder / "sheet");
  EXPECT_EQ(pages_, 1);
  EXPECT_EQ(Start("sheet.pdf"), "%PDF-");
  EXPECT_TRUE(suggested_.endsWith(".pdf")) << suggested_.toStdString();
  SaveSheet("SaveHtml", Folder / "sheet.html");
  EXPECT_EQ(Start("sheet.html"), "<!DOC");
  EXPECT_NE(Folder.Read("sheet.html").find("Hanno of Bruttium"), std::string::npos);
  EXPECT_EQ(TakeMessages(), QStringList());
  SaveSheet("SaveHtml", Folder / "nowhere" / "sheet.html");
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_TRUE(state() == before);
}

TEST(SheetPages, TearNoRow) {
  // Of rows of 14 lines three fit on a page, and a fourth in part.
  const auto pagesOf = [](std::size_t rows, int lines) {
    std::string cell;
    for (int line = 0; line < lines; ++line)
      cell += Element("p style='font-size: 13pt; margin: 0'", "x");
    const std::vector<std::string> cells(2 * rows, cell);
    const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, sheetMargins,
                             QPageLayout::Millimeter);
    const std::string pdf = SheetPdf(TwoInARow(cells), "", layout);
    return QByteArray::fromStdString(pdf).count("/Type /Page\n");
  };
  EXPECT_EQ(pagesOf(6, 14), 2);
  EXPECT_EQ(pagesOf(7, 14), 3);
  EXPECT_EQ(pagesOf(1, 110), 3) << "a row that no page can hold";
}

}  // namespace tarnwick
