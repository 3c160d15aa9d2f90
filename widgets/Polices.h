// The fonts of the system. Listing them takes a third of a start, so it goes on beside the rest of it.
#pragma once

/// Reads the settings of the fonts on a second thread; to be called before the application object is made.
void LitPolices();

/// Lets the toolkit list the fonts on that thread; to be called when the application object stands.
void ListePolices();

/// Waits for the listing. Measuring a text before would do the whole work a second time.
void AttendPolices();
