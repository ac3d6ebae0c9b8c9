// What a click on the board starts, and what a closing screen leads to.
#pragma once

namespace girovia::eventi {

// Runs when the board is first shown, and once whenever a screen over it has closed. Only the dice
// close without a return flag, so only they start the resolution of a turn.
void Form_Activate();

void cmdRitratto_Click(int indice);
void cmdcitta_Click(int indice);
void CmdHelp_Click();
void cmdExit_Click();

}  // namespace girovia::eventi
