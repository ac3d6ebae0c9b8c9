// Plays a game from a written script and records what happens. A script that clicks nothing on the
// start screen begins behind it, with what that screen offers.
//
// Statements stand on lines of their own or are parted by ';', and '#' starts a comment. They
// follow one another as the game asks for them: a click when it has nothing more to do, a number
// when it draws one. A game that asks for another kind than the next statement is an error of the
// script.
//
//   clic cmdRitratto(1)              the middle of a control of the form in front...
//   clic FormBanconote.cmdRisposta   ...which must be this one
//   attendi 2000                     milliseconds without a click, or until the next draw
//   dado 3 4                         the faces of the two dice
//   ritratti 124 131                 and so on: the table in registratore.cpp
//   u 0.25                           a bare random number
//   tira 1 3 4                       player 1 throws and takes the money
//   passa                            ...draws the true-or-false card and does not know
//   sposta 3 7                       lifts the tile on cell 3 and drops it on cell 7
//   scrivi Zoè di Rodi               types; tasto Tab, Invio, Esc, Spazio, Destra or Canc
//   posto 1 96; gruzzolo 1 40        puts player 1 there, with so much money
//   seme 7                           from here to the end the numbers are those of a generator, and
//                                    the clicks those of a player who answers by chance
#pragma once

#include <stdexcept>
#include <string>

namespace girovia {

struct ErroreCopione : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The record of the game, one line an event: virtual milliseconds and what happened. Throws
// ErroreCopione where game and script part. An impatient player clicks about during all waits,
// which should make no difference.
std::string Registra(const std::string& copione, const std::string& cartella,
                     bool impaziente = false);

}  // namespace girovia
