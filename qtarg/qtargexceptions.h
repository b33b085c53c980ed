// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

/// Everything that a command line can lead to besides a plain run. Carries a message for people.
class QtArgBaseException : public std::exception {
public:
    explicit QtArgBaseException(const QString &message);
    ~QtArgBaseException() override;

    QString qwhat() const { return messageText; }
    /// The message in the 8-bit encoding of the system; it lives as long as the exception.
    const char *what() const noexcept override { return messageBytes.constData(); }

private:
    QString messageText;
    QByteArray messageBytes;
};

/// An option that nobody has added, or a name that fits several.
class QtArgUnknownArgumentEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

/// A word that is neither an option nor the value of one.
class QtArgUnexpectedOptionEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

/// A required option that does not appear.
class QtArgNotDefinedMandatoryArgumentEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

/// A required option that appears without its value.
class QtArgNotDefinedOptionForTheArgumentEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

/// A value that the option's constraint refuses.
class QtArgContraintNotObservedEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

/// The definition of an option without flag and name.
class QtArgNotDefinedNorNameNorFlagEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

/// The definition of an option that could never be written.
class QtArgDissallowedFlagOrNameEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

/// The definition of an option under a flag or name that another has.
class QtArgNameOrFlagAlreadyKnownEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

class QtArgHelpPrinterHasntDefinedEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

class QtArgVersionPrinterHasntDefinedEx : public QtArgBaseException {
    using QtArgBaseException::QtArgBaseException;
};

/// The help was printed: no mistake, but no run either.
class QtHelpHasPrintedEx : public QtArgBaseException {
public:
    QtHelpHasPrintedEx();
};

/// A version was printed: no mistake, but no run either.
class QtVersionHasPrintedEx : public QtArgBaseException {
public:
    QtVersionHasPrintedEx();
};
