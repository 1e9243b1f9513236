# A plan is read, joined, and given doors: cells as in a notebook, run from top to bottom.

# %% The plan
import orvex

plan = orvex.open("flat.dxf")
print(len(plan.multilines), "walls in", len(plan.styles), "styles")

# %% The longest wall of each layer
longest = {}
for wall in sorted(plan.multilines, key=lambda wall: wall.length):
    longest[wall.layer] = wall
for layer, wall in sorted(longest.items()):
    print(f"{layer}: #{wall.handle}, {wall.length:.0f} long")

# %% Walls joined where they meet
report = plan.join(cross="open", tee="open")
print(report.counts["joined"], "joints,", report.counts["left"], "places left")
for joint in report.joints:
    if joint.result == "left":
        print(joint.kind, "at", joint.at, joint.reason)

# %% A door in the middle of the longest partition
wall = plan.multiline(longest["WALL-INT"].handle)  # as it is after the joining
start, end = (vertex.position for vertex in wall.vertices[:2])
middle = [(a + b) / 2 for a, b in zip(start, end)]
along = [(b - a) / wall.length for a, b in zip(start, end)]
door = orvex.Script().command("-MLEDIT", "CA")
for distance in (-450, 450):
    door.pick([m + distance * d for m, d in zip(middle, along)], wall.handle)
plan.run(door.enter(), strict=True)

# %% The result, as a drawing and as a picture
plan.save("doors.dxf")
plan.show("doors.png", size=(800, 600))
