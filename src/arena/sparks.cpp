#include "arena/sparks.h"

#include "base/random.h"

namespace vandrel {

std::vector<Spark> sparks;

namespace {

constexpr int sparksInBurst = 300;
constexpr int sparkLife = 240;
constexpr float sparkGravity = 0.01f;

std::uint8_t drawChannel() {
    return static_cast<std::uint8_t>(uniformInt(particleGenerator, 0, 255));
}

}  // namespace

void addSparks(Pixel point) {
    for (int i = 0; i < sparksInBurst; ++i) {
        Spark spark;
        spark.x = static_cast<float>(point.x);
        spark.y = static_cast<float>(point.y);
        spark.vx = uniformFloat(particleGenerator, -2.0f, 2.0f);
        spark.vy = uniformFloat(particleGenerator, -2.0f, 0.0f);
        spark.colour.blue = drawChannel();
        spark.colour.green = drawChannel();
        spark.colour.red = drawChannel();
        spark.life = sparkLife;
        sparks.push_back(spark);
    }
}

void advanceSparks() {
    std::erase_if(sparks, [](Spark& spark) {
        --spark.life;
        if (spark.life <= 0) {
            return true;
        }
        spark.vy += sparkGravity;
        spark.x += spark.vx;
        spark.y += spark.vy;
        return false;
    });
}

}  // namespace vandrel
