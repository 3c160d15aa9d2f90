// The end of every calculation of a cam: no result may be left that is no finite number.
#pragma once

/// Looks through what a calculation has filled.
/// @throws ErreurExecution a result that is no number, with its quantity and its point.
void ExigeResultatsFinis();

/// The same for the motion of one point, while a calculation runs. @param k its subscript
void ExigePointFini(long k);
