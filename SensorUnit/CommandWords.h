#pragma once

#include "SensorUnit/Unit.h"

#include <optional>
#include <string>
#include <vector>

namespace SensorUnit {

/// The words of a command behind its verb, taken one by one. Each operation that finds no fitting word leaves an
/// error behind and returns nothing.
class Words {
public:
    explicit Words(std::vector<std::string> words) : words(std::move(words)) {}

    bool AtEnd() const { return next >= words.size(); }
    /// The next word, empty at the end.
    std::string Take() { return AtEnd() ? std::string() : words[next++]; }
    /// Takes the next word if it is `word`.
    bool TakeIf(const std::string& word);
    /// The next word as a number from `low` to `high`.
    std::optional<double> Number(double low, double high);
    /// Likewise, and whole.
    std::optional<int> Whole(int low, int high);
    /// The next word's place in `choices`.
    std::optional<int> Choice(const std::vector<std::string>& choices);
    /// Nothing may follow.
    bool Finish();

    bool Fail(const std::string& text);
    const std::string& Error() const { return error; }

private:
    std::vector<std::string> words;
    std::size_t next = 0;
    std::string error;
};

/// `value` in the shortest form that keeps three decimals.
std::string Text(double value);

const std::vector<std::string>& SensorNames();
const std::vector<std::string>& NodeNames();
const std::vector<std::string>& ValveNames();

// The verbs of the control protocol with many words. Each appends what it says to `answer`, and returns false with
// an error in `words`.
bool CommandGet(Unit& unit, Words& words, std::string& answer);
bool CommandSet(Unit& unit, Words& words, std::string& answer);
bool CommandProfile(Unit& unit, Words& words, std::string& answer);
bool CommandImage(Unit& unit, Words& words, Micros now);
bool CommandFault(Unit& unit, Words& words, std::string& answer);
bool CommandClear(Unit& unit, Words& words);

/// One line of help for each setting and each fault.
std::string HelpOnSettings();
std::string HelpOnFaults();

}
