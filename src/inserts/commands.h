#pragma once
// The command words of the insert tools, as routine rows of the command table
// run them.

#include "session/frontend.h"
#include "session/session.h"

namespace lp {

// fraction and radicalexpression: too little selected opens the dialog.
void FractionCommand(Session& session, Frontend& ui);
void RadicalExpressionCommand(Session& session, Frontend& ui);
void ArcCommand(Session& session, Frontend& ui);             // hu
void VectorCommand(Session& session, Frontend& ui);          // xl
void EquationSystemCommand(Session& session, Frontend& ui);  // fcz
void RecurringDecimalCommand(Session& session, Frontend& ui);

void JoinLRCommand(Session& session, Frontend& ui);  // join_lr
void JoinUDCommand(Session& session, Frontend& ui);  // join_ud
void GroupCommand(Session& session, Frontend& ui);
void DrawCenterCommand(Session& session, Frontend& ui);
void EnlargeCommand(Session& session, Frontend& ui);
// wbk_b, wbk_y, wbk_n: the plain text box holding " ", "Y" or "N".
void BlankBoxCommand(Session& session, Frontend& ui);
void YesBoxCommand(Session& session, Frontend& ui);
void NoBoxCommand(Session& session, Frontend& ui);

void SetHotKeyCommand(Session& session, Frontend& ui);    // sethotkey
void FormulaModeCommand(Session& session, Frontend& ui);  // gsms
void DrawingModeCommand(Session& session, Frontend& ui);  // htms

}  // namespace lp
