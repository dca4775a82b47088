// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Program.h"
#include "support/FakeBrowser.h"
#include "support/FakeClock.h"
#include "support/FakeKeyring.h"
#include "support/FakeNearby.h"
#include "support/FakePrinting.h"
#include "support/FakeSound.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedPrompts.h"

/// A program whose clock, boxes, choosers, paper, browser and sound are the test's.
struct TestProgram
{
private:
    Services m_services;

    template <class Fake, class Seam, class... Arguments>
    static Fake &put(std::unique_ptr<Seam> &into, Arguments &&...arguments)
    {
        auto made = std::make_unique<Fake>(std::forward<Arguments>(arguments)...);
        Fake &fake = *made;
        into = std::move(made);
        return fake;
    }

    Services services(const ProgramPaths &paths)
    {
        m_services.pictures = Pictures(paths.ImagesFolder);
        return std::move(m_services);
    }

public:
    explicit TestProgram(const QDateTime &now, const ProgramPaths &paths = {})
        : clock(put<FakeClock>(m_services.clock, now)), prompts(put<ScriptedPrompts>(m_services.prompts)),
          choosers(put<ScriptedChoosers>(m_services.choosers)), printing(put<FakePrinting>(m_services.printing)),
          browser(put<FakeBrowser>(m_services.browser)), sound(put<FakeSound>(m_services.sound)),
          keyring(put<FakeKeyring>(m_services.keyring)), nearby(put<FakeNearby>(m_services.nearby)),
          program(services(paths), paths, 96)
    {}

    FakeClock &clock;
    ScriptedPrompts &prompts;
    ScriptedChoosers &choosers;
    FakePrinting &printing;
    FakeBrowser &browser;
    FakeSound &sound;
    FakeKeyring &keyring;
    FakeNearby &nearby;
    Program program;
};
