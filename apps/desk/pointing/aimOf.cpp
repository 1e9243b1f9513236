#include "aimOf.h"

#include "KdDbEntity.h"
#include "KdDbStub.h"
#include "PromptSession.h"
#include "Scene.h"

#include <iterator>
#include <utility>

namespace orvex {

namespace {

// Draws the other one as well.
void append(Appearance& all, Appearance other) {
    const auto patterns = static_cast<std::uint32_t>(all.dashPatterns.size());
    for (Stroke& stroke : other.strokes) {
        stroke.dashes += stroke.dashes > 0 ? patterns : 0;
    }
    const auto move = [](auto& to, auto& from) {
        to.insert(to.end(), std::make_move_iterator(from.begin()),
                  std::make_move_iterator(from.end()));
    };
    move(all.fills, other.fills);
    move(all.strokes, other.strokes);
    move(all.labels, other.labels);
    move(all.dashPatterns, other.dashPatterns);
}

} // namespace

Aim aimOf(const PromptRequest& request, Scene& scene,
          const std::optional<SelectionProgress>& progress) {
    Aim aim;
    aim.pickBox = PromptSession::current().pickBox;
    if (request.kind == PromptKind::entity) {
        aim.kind = AimKind::entity;
    } else if (request.kind == PromptKind::point ||
               (request.kind == PromptKind::real && request.base)) {
        aim.kind = AimKind::point;
    } else if (request.kind == PromptKind::selection) {
        aim.kind = AimKind::selection;
    }
    if (request.kind == PromptKind::selection && progress) {
        aim.takes = [takesMlines = progress->takesMlines](const KdDbStub& entity) {
            return !takesMlines || entity.kind == ObjectKind::mline;
        };
    }
    if (request.base) {
        aim.base = PlanPoint{request.base->x, request.base->y};
    }
    if (request.preview) {
        aim.preview = [preview = request.preview, &scene](PlanPoint cursor) {
            const auto entity = preview({cursor.x, cursor.y, 0.0});
            return entity != nullptr ? scene.appearanceOf(*entity) : Appearance();
        };
    }
    if (request.previews) {
        aim.preview = [previews = request.previews, &scene](PlanPoint cursor) {
            Appearance all;
            for (const auto& entity : previews({cursor.x, cursor.y, 0.0})) {
                append(all, scene.appearanceOf(*entity));
            }
            return all;
        };
    }
    if (request.motion.map) {
        aim.group.entities = request.motion.entities;
        aim.group.map = [map = request.motion.map](PlanPoint cursor) {
            return map({cursor.x, cursor.y, 0.0});
        };
    }
    return aim;
}

} // namespace orvex
