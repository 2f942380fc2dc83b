// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "monkey/texts.h"

namespace tarnwick {
namespace {

constexpr const char* numbers[] = {"-1",    "-20",     "-3500", "3500", "3501", "-32768", "32767",
                                   "32768", "99999",   "007",   "2.5",  "0.4",  "-0",     "1e3",
                                   "1e-9",  "32767.7", "12x",   "1,5",  " 3 ",  "+4",     "."};

constexpr const char* words[] = {"Trebia",
                                 "Fenmoot",
                                 "Hannibal of Carthage",
                                 "Ida",
                                 "x",
                                 " x ",
                                 "\"x\"",
                                 "'",
                                 "a=b",
                                 "[ARMY]",
                                 ";x",
                                 "%s",
                                 "&Name",
                                 "a@b",
                                 "a\\nb",
                                 "<b>x</b>",
                                 "nowhere/x",
                                 "brakka/x",
                                 "../x",
                                 "a\\b",
                                 "NUL",
                                 ".",
                                 "-",
                                 "F,P",
                                 "\u00e4\u00d6\u00df\u20ac\u0160",
                                 "\u4e2d\u6587",
                                 "\U0001f40d",
                                 "e\u0301",
                                 "\u202eabc",
                                 "\u00a0"};

QString SmallNumber(Dice& dice) {
  return QString::number(dice.Roll(12));
}
QString OddNumber(Dice& dice) {
  return dice.Pick(numbers);
}
QString Year(Dice& dice) {
  return QString::number(dice.Roll(4000));
}
QString Word(Dice& dice) {
  return dice.Pick(words);
}
QString Nothing(Dice& /*dice*/) {
  return "";
}

QString Gibberish(Dice& dice) {
  QString text;
  for (int left = 1 + dice.Roll(8); left > 0; --left)
    text += QChar(0x20 + dice.Roll(0xe0));
  return text;
}

QString LongText(Dice& dice) {
  return Word(dice).repeated(1 + dice.Roll(300));
}

}  // namespace

QString AnyText(Dice& dice) {
  constexpr QString (*kinds[])(Dice&) = {SmallNumber, SmallNumber, SmallNumber, SmallNumber,
                                         Year,        Year,        OddNumber,   Word,
                                         Word,        Nothing,     Gibberish,   LongText};
  return dice.Pick(kinds)(dice);
}

}  // namespace tarnwick
