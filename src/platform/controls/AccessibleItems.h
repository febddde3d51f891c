#pragma once

namespace kovamo {

/// Tells screen readers more of lists and rows than Qt does: a list's children in the
/// order in which they are seen, however they were made; a DeletableRow as one, with its actions.
void installAccessibleItems();

} // namespace kovamo
